// Runs when libUIKit.so is loaded: all its classes are there before any other code asks for them.
#include "uikit/IndexPath.hpp"
#include "uikit/SimApplication.hpp"
#include "uikit/SimButton.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimDeleteConfirmation.hpp"
#include "uikit/SimDevice.hpp"
#include "uikit/SimEditControl.hpp"
#include "uikit/SimEvent.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimScreen.hpp"
#include "uikit/SimSegmentedControl.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"
#include "uikit/SimTableViewCellScrollView.hpp"
#include "uikit/SimTouch.hpp"
#include "uikit/SimViewController.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/StringDrawing.hpp"

namespace {

/// Superclasses first.
[[gnu::constructor]] void registerClasses() {
    const objc::AutoreleasePool pool;
    SimColor::define();
    SimFont::define();
    SimImage::define();
    SimLayer::define();
    SimTouch::define();
    SimEvent::define();
    SimScreen::define();
    SimDevice::define();
    SimResponder::define();
    SimApplication::define();
    SimViewController::define();
    SimView::define();
    SimWindow::define();
    SimLabel::define();
    SimImageView::define();
    SimControl::define();
    SimButton::define();
    SimSegmentedControl::define();
    SimScrollView::define();
    SimTableViewCellScrollView::define();
    SimDeleteConfirmationButton::define();
    SimDeleteConfirmationView::define();
    SimEditControl::define();
    SimTableViewCell::define();
    SimTableView::define();
    sim::addStringDrawing();
    sim::addIndexPathMessages();
}

}  // namespace
