# The everyday commands. Each installs the Debian packages it needs, if any are missing, and builds
# what it works on; none needs an environment variable.
.PHONY: help demo phone test build bench asan monkey tsan clang format lint contract device \
	device-test device-pictures page-test reproducible packages-all

# The slices of the library that "make device" builds, and the host that its web search asks; empty:
# as in src/recents/Actions.cpp.
SLICES = armv7 arm64
SEARCH_HOST =

# Which random steps "make monkey" does.
SEED = 1

# Some tests wait for their time to pass: another one runs meanwhile.
TESTS_AT_ONCE = $$(($$(nproc) + 1))

help:
	@echo 'make demo          build, draw every scene into build/demo, describe some numbers'
	@echo 'make phone         build, show the phone in a browser until Ctrl-C'
	@echo 'make test          build, run the tests'
	@echo 'make build         build library, simulator and tests into build/'
	@echo 'make bench         build, run the benchmarks'
	@echo 'make asan          run the tests under the address, undefined-behaviour and leak checks'
	@echo 'make monkey        play at random under the same checks, 100,000 steps; SEED=N other ones'
	@echo 'make tsan          run the tests under the thread checks'
	@echo 'make clang         build everything with clang as well'
	@echo 'make format        format the sources'
	@echo 'make lint          check format and style of the sources'
	@echo 'make contract      check what libZQDial.so shows and takes'
	@echo 'make device        build the library for iOS and its package into build/device, check them;'
	@echo '                   SLICES=arm64 one slice alone, SEARCH_HOST=name where its search leads'
	@echo 'make device-test   run it on emulated processors, and break it on purpose to see that noticed'
	@echo 'make device-pictures  have it draw every scene there, and compare with the host'
	@echo 'make page-test     check the page of make phone, and use it in a real browser'
	@echo 'make reproducible  build it a second time elsewhere, and compare'
	@echo 'make packages-all  install the packages of all of these; packages-GROUP: one of packages.txt'
	@echo '.ci/run            everything that has to pass before a change lands'
	@echo
	@echo 'CONTRIBUTING.md says how to run one test, one sanitizer, one benchmark.'

packages-all: packages-build packages-lint packages-page packages-device packages-armv7 \
	packages-qemu packages-qemu-armv7

packages-%:
	@tools/install-packages.sh $*

build: packages-build
	@cmake --preset host >/dev/null
	@cmake --build --preset host

# What only the tests use is not built.
demo: packages-build
	@cmake --preset host >/dev/null
	@cmake --build --preset host --target phone-simulator
	@tools/demo.sh

phone: packages-build
	@cmake --preset host >/dev/null
	@cmake --build --preset host --target phone-simulator
	@exec build/bin/phone-simulator serve

test: build
	@ctest --preset host --parallel $(TESTS_AT_ONCE)

bench: build
	@cmake --build --preset host --target bench

page-test: packages-build packages-page
	@cmake --preset host >/dev/null
	@cmake --build --preset host --target phone-simulator
	@tests/page/run.sh

contract: build
	@cmake --build --preset host --target contract

asan tsan: packages-build
	@cmake --preset $@ >/dev/null
	@cmake --build --preset $@
	@ctest --preset $@ --parallel $(TESTS_AT_ONCE)

monkey: packages-build
	@cmake --preset asan >/dev/null
	@cmake --build --preset asan --target phone-simulator
	@build/asan/bin/phone-simulator monkey --seed $(SEED) --events 100000 --out build/asan

clang: packages-build packages-lint
	@cmake --preset clang >/dev/null
	@cmake --build --preset clang --target all benchmarks

format: packages-lint
	@tools/format.sh

lint: packages-build packages-lint packages-qemu packages-qemu-armv7
	@tools/format.sh --check
	@mypy device tests/device tools
	@cmake --preset host >/dev/null
	@tools/lint.py

device: packages-device $(if $(filter armv7,$(SLICES)),packages-armv7)
	@cmake -S device -B build/device -G Ninja "-DZQDIAL_SEARCH_HOST=$(SEARCH_HOST)" \
		"-DSLICES=$(subst $() ,;,$(strip $(SLICES)))" >/dev/null
	@cmake --build build/device
	@cmake --build build/device --target check

device-test: device packages-qemu $(if $(filter armv7,$(SLICES)),packages-qemu-armv7)
	@cmake -S device -B build/device >/dev/null
	@cmake --build build/device --target outside
	@ctest --test-dir build/device --output-on-failure --no-tests=error --parallel $(TESTS_AT_ONCE) \
		--exclude-regex '^(reproducible|pictures)$$'

device-pictures: build device packages-qemu
	@cmake -S device -B build/device >/dev/null
	@cmake --build build/device --target pictures
	@ctest --test-dir build/device --output-on-failure --no-tests=error --tests-regex '^pictures$$'

reproducible: device
	@ctest --test-dir build/device --output-on-failure --no-tests=error --tests-regex '^reproducible$$'
