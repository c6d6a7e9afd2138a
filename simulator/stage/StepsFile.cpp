// A file is read whole before the first of its steps is done.
#include "stage/StepsFile.hpp"

#include "stage/Errors.hpp"
#include "stage/UserFile.hpp"

namespace stage {

Steps readStepsFile(const std::filesystem::path &file) {
    std::ifstream in = openUserFile(file, "name a file of steps");
    Steps steps;
    Mistakes mistakes(file);
    size_t number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        const size_t start = line.find_first_not_of(" \t");
        if (start == std::string::npos || line[start] == '#') {
            continue;
        }
        try {
            Step step = readStep(std::string_view(line).substr(start));
            step.place = file.string() + ":" + std::to_string(number);
            steps.push_back(std::move(step));
        } catch (const UsageError &error) {
            mistakes.add(number, error.what());
        }
    }
    mistakes.throwIfAny();
    return steps;
}

}  // namespace stage
