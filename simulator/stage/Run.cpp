// Exit codes, and what is said on the way to them.
#include "stage/Run.hpp"

#include <iomanip>
#include <ranges>
#include <set>

#include "stage/Commands.hpp"
#include "stage/Errors.hpp"
#include "stage/Interruption.hpp"
#include "uikit/drawing/Canvas.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

/// In one line, however many there are.
void warnOfBoxes(std::ostream &err) {
    constexpr ptrdiff_t kShown = 5;
    const std::set<char32_t> &characters = sim::Canvas::charactersWithoutGlyph();
    if (characters.empty()) {
        return;
    }
    err << kProgram << ": drawn as boxes, since no font here has them:" << std::hex
        << std::uppercase << std::setfill('0');
    for (const char32_t character : characters | std::views::take(kShown)) {
        err << " U+" << std::setw(4) << static_cast<uint32_t>(character);
    }
    err << std::dec;
    if (std::ssize(characters) > kShown) {
        err << " and " << std::ssize(characters) - kShown << " more";
    }
    err << "; install a font that does\n";
}

}  // namespace

int run(std::span<const std::string> words, std::ostream &out, std::ostream &err) {
    constexpr int kFailed = 1;
    constexpr int kWrongUsage = 2;
    const Interruption interruption;
    try {
        Request request = readRequest(words);
        if (request.command == nullptr) {
            out << request.text;
        } else {
            request.settings.warn = [&err](const std::string &line) {
                // Names from the user's files may hold newlines.
                err << kProgram << ": " << sim::drawableText(sim::utf16(line)).utf8 << '\n';
            };
            request.command->run(request, out);
        }
        warnOfBoxes(err);
        Interruption::check();  // a pipe that nobody reads from is no full disk
        if (!out.flush()) {
            throw Failure("the output cannot be written; is the disk full?");
        }
        return 0;
    } catch (const UsageError &error) {
        err << error.what() << '\n';
        return kWrongUsage;
    } catch (const Interrupted &) {
        out.flush();  // of what was done
    } catch (const std::exception &error) {
        err << kProgram << ": " << error.what() << '\n';
    } catch (...) {
        err << kProgram
            << ": an Objective-C exception ended the run; please report the "
               "command\n";
    }
    return kFailed;
}

}  // namespace stage
