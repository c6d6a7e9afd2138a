// A download copies a picture that lies here, at both of its scales.
#include "companion/classes/ZQPartnerManager.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Services.hpp"
#include "companion/classes/ZQIPCService.hpp"
#include "objc/ClassBuilder.hpp"
#include "uikit/drawing/Picture.hpp"

namespace companion {

namespace {

namespace fs = std::filesystem;

/// Copies under another name first, so that a file at `to` is always a whole one.
void copyWhole(const fs::path &from, const fs::path &to) {
    const fs::path part = to.string() + ".part";
    fs::copy_file(from, part, fs::copy_options::overwrite_existing);
    fs::rename(part, to);
}

void fetch(const std::string &icon, const fs::path &destination) {
    const auto doubleScale = &sim::Picture::doubleScale;
    const fs::path source = pictureFile(fs::path(icon).filename().string());
    fs::create_directories(destination.parent_path());
    if (fs::exists(doubleScale(source))) {
        copyWhole(doubleScale(source), doubleScale(destination));
    }
    copyWhole(source, destination);
}

void noteFinished(const std::string &icon, const std::string &destination) {
    auto &downloads = journal().downloads;
    const auto waiting = std::ranges::find_if(downloads, [&](const Download &download) {
        return !download.finished && download.icon == icon && download.destination == destination;
    });
    if (waiting != downloads.end()) {
        waiting->finished = true;
    }
}

}  // namespace

Class ZQPartnerManager::define() {
    using Self = ZQPartnerManager;
    return objc::ClassBuilder<Self>("ZQPartnerManager", "NSObject")
        .classMethod("defaultManager"_sel, objc::function<&shared<Self>>)
        .method("getPartnerItemById:"_sel, objc::member<&Self::partnerItem>)
        .method("addOrUpdateOnePartnerItem:"_sel, objc::member<&Self::addOrUpdate>)
        .method("doDownloadPartnerIcon:destPath:"_sel, objc::member<&Self::download>)
        .method("finishDownload:"_sel, objc::member<&Self::finishDownload>)
        .finish();
}

ZQPartnerItem *ZQPartnerManager::partnerItem(std::int32_t partnerId) {
    const auto partner = store().partner(partnerId);
    return partner ? ZQPartnerItem::withRecord(*partner) : nullptr;
}

void ZQPartnerManager::addOrUpdate(ZQPartnerItem *item) {
    if (item != nullptr) {
        store().putPartner(item->record());
    }
}

void ZQPartnerManager::download(NSString icon, NSString destination) {
    note(journal().downloads, {.icon = utf8(icon), .destination = utf8(destination)});
    if (icon.length() == 0 || destination.length() == 0) {
        return;
    }
    ++awaited();
    const id parts[] = {icon, destination};
    const auto request = objc::send<NSArray(const id *, NSUInteger)>(
        "NSArray"_cls, "arrayWithObjects:count:"_sel, parts, NSUInteger{2});
    objc::send<void(SEL, NSArray, double)>(*this, "performSelector:withObject:afterDelay:"_sel,
                                           SEL("finishDownload:"_sel), request,
                                           store().downloadDelay());
}

void ZQPartnerManager::finishDownload(NSArray request) {
    --awaited();
    const std::string icon = utf8(request.objectAtIndex(0).as<NSString>());
    const auto destination = request.objectAtIndex(1).as<NSString>();
    try {
        fetch(icon, utf8(destination));
    } catch (const fs::filesystem_error &error) {
        std::fprintf(stderr, "companion: the logo %s cannot be fetched: %s\n", icon.c_str(),
                     error.what());
        return;
    }
    noteFinished(icon, utf8(destination));
    ZQIPCService::post("msgPartnerLogoDownloaded"_ns,
                       NSDictionary::withObject(destination, "plogopath"_ns));
}

}  // namespace companion
