// In place of the server where its library is not: in the build for another processor.
#include "serve/Phone.hpp"
#include "serve/Serve.hpp"
#include "stage/Errors.hpp"

namespace serve {

void serve(const stage::Request &, std::ostream &) {
    throw stage::Failure("this build of the simulator has no server");
}

int runPhone() { return EXIT_FAILURE; }

}  // namespace serve
