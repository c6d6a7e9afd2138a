// Encodings are read character by character; numbers between them are offsets that nobody needs.
#include "inspect/Signature.hpp"

#include <cctype>

namespace inspect {

/// Its list of elements ends with a null, as libffi wants it.
struct Signature::Struct {
    ffi_type type{};
    std::vector<ffi_type *> elements;
};

class Signature::Reader {
  public:
    Reader(std::string_view encoding, Signature &into) : rest_(encoding), into_(into) {}

    /// False where a type cannot be passed on.
    bool readAll() {
        skip();
        while (!rest_.empty()) {
            const std::string_view before = rest_;
            ffi_type *const type = readType();
            if (!type) {
                return false;
            }
            into_.types_.push_back(type);
            into_.codes_.emplace_back(before.substr(0, before.size() - rest_.size()));
            skip();
        }
        return into_.types_.size() >= 3;  // a result, the receiver and the selector
    }

  private:
    /// Offsets, and words such as const.
    void skip() {
        constexpr std::string_view kWords = "rnNoORVA+-";
        while (!rest_.empty() && (std::isdigit(static_cast<unsigned char>(rest_.front())) != 0 ||
                                  kWords.find(rest_.front()) != std::string_view::npos)) {
            rest_.remove_prefix(1);
        }
    }

    char take() {
        const char first = rest_.empty() ? '\0' : rest_.front();
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        return first;
    }

    ffi_type *readType() {
        skip();
        const char code = take();
        switch (code) {
        case '{':
            return readStruct();
        case '@':  // a block is an object too
            if (rest_.starts_with('?')) {
                take();
            }
            return &ffi_type_pointer;
        case '^':
            return skipPointee() ? &ffi_type_pointer : nullptr;
        default:
            return scalar(code);
        }
    }

    static ffi_type *scalar(char code) {
        switch (code) {
        case 'v':
            return &ffi_type_void;
        case 'c':
            return &ffi_type_schar;
        case 'C':
        case 'B':
            return &ffi_type_uchar;
        case 's':
            return &ffi_type_sshort;
        case 'S':
            return &ffi_type_ushort;
        case 'i':
            return &ffi_type_sint;
        case 'I':
            return &ffi_type_uint;
        case 'l':
            return &ffi_type_slong;
        case 'L':
            return &ffi_type_ulong;
        case 'q':
            return &ffi_type_sint64;
        case 'Q':
            return &ffi_type_uint64;
        case 'f':
            return &ffi_type_float;
        case 'd':
            return &ffi_type_double;
        case '*':
        case '#':
        case ':':
            return &ffi_type_pointer;
        default:
            return nullptr;
        }
    }

    /// What a pointer points to may be anything that ends somewhere.
    bool skipPointee() {
        skip();
        const char code = take();
        if (code == '^') {
            return skipPointee();
        }
        const std::size_t open = std::string_view("{[(").find(code);
        if (open == std::string_view::npos) {
            return code != '\0';
        }
        const char opening = code;
        const char closing = std::string_view("}])")[open];
        for (int depth = 1; depth > 0 && !rest_.empty();) {
            const char next = take();
            depth += next == opening ? 1 : next == closing ? -1 : 0;
        }
        return true;
    }

    ffi_type *readStruct() {
        const std::size_t name = rest_.find_first_of("={}");
        if (name == std::string_view::npos || rest_[name] != '=') {
            return nullptr;
        }
        rest_.remove_prefix(name + 1);
        auto made = std::make_unique<Struct>();
        while (!rest_.empty() && !rest_.starts_with('}')) {
            ffi_type *const element = readType();
            if (!element || element == &ffi_type_void) {
                return nullptr;
            }
            made->elements.push_back(element);
            skip();
        }
        if (made->elements.empty() || take() != '}') {
            return nullptr;
        }
        made->elements.push_back(nullptr);
        made->type.type = FFI_TYPE_STRUCT;
        made->type.elements = made->elements.data();
        return &into_.structs_.emplace_back(std::move(made))->type;
    }

    std::string_view rest_;
    Signature &into_;
};

Signature::Signature() = default;

Signature::~Signature() = default;

std::unique_ptr<Signature> Signature::read(std::string_view encoding) {
    std::unique_ptr<Signature> made(new Signature);
    if (!Reader(encoding, *made).readAll()) {
        return nullptr;
    }
    const ffi_status status =
        ffi_prep_cif(&made->call_, FFI_DEFAULT_ABI, static_cast<unsigned>(made->arguments()),
                     made->types_.front(), made->types_.data() + 1);
    return status == FFI_OK ? std::move(made) : nullptr;
}

}  // namespace inspect
