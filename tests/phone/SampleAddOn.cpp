// An add-on that only asks for a class when it is mapped, for the tests of the loader.
#include "objc/Runtime.hpp"

__attribute__((constructor)) static void lookForClass() {
    objc_getClass("SampleClassThatIsNowhere");
}
