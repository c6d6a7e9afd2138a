// One run of the simulated telephone: a device, a world, the Phone application, with or without the
// add-on. Hooks, classes and the device belong to the process for good, so a process has one.
#pragma once

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

#include "objc/owned.hpp"
#include "platform/Foundation.hpp"
#include "stage/Model.hpp"
#include "stage/Step.hpp"

namespace phone {
class DialerController;
}  // namespace phone
namespace sim {
class Finger;
}  // namespace sim

namespace stage {

struct Settings {
    Model model{};
    bool withAddOn = true;
    std::filesystem::path world{};  // empty: the sample world
    std::filesystem::path data{};   // empty: demo/data of the build
    bool fixedMeasurer = false;     // text measured by a rule instead of by fonts, for tests
    std::string withoutClass{};     // a class of the Phone application that is to be missing
    bool verbose = false;           // report skipped hooks on stderr
    std::string bundleIdentifier = "com.apple.mobilephone";
};

class Session {
  public:
    /// Opens the companion and loads the add-on. Throws Failure, or the error of whatever could not
    /// be opened, each with a message of one line.
    explicit Session(const Settings &settings);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Puts a keypad that nobody has touched yet on the screen.
    void openDialer();
    /// The keypad's controller.
    phone::DialerController *dialer() const;

    /// Does one step; trees are printed to `out`. Throws Failure when the step is not possible now.
    void perform(const Step &step, std::ostream &out);

    /// The screen's view tree, laid out.
    std::string tree() const;
    /// Throws sim::PictureError.
    void savePicture(const std::filesystem::path &file) const;
    /// What the screen says under the typed number, its visible texts joined by " | ".
    std::string lineText() const;
    /// The typed number as it is shown.
    std::string numberText() const;

  private:
    void type(const std::string &text) const;
    void press(const std::string &character) const;
    void touch(Step::Kind kind);
    void saveContact(const std::string &name) const;

    objc::AutoreleasePool pool_;
    objc::Owned<NSObject> window_;
    objc::Owned<NSObject> root_;
    std::unique_ptr<sim::Finger> finger_;
};

}  // namespace stage
