// A turn is what the phones do between two pictures: the time that has passed, and the steps that
// came meanwhile. While they are at it, what comes next waits.
#include "serve/Visitor.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "serve/Reports.hpp"
#include "stage/Commands.hpp"
#include "stage/Errors.hpp"

namespace serve {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr size_t kMostWaiting = 256;        // lines
constexpr std::uint32_t kMostUnderWay = 2;  // pictures
constexpr auto kLively = 16ms;              // from turn to turn, when there is something to be seen
constexpr auto kSoon = 50ms;
constexpr auto kQuiet = 200ms;
constexpr auto kBetweenViews = 150ms;
constexpr auto kBetweenWaits = 1s;  // of telling that time has passed

std::string replaced(std::string text, const std::string &what, const std::string &by) {
    for (size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// As the command line says it.
std::vector<std::string> linesOf(const std::string &message) {
    std::vector<std::string> lines;
    std::istringstream stream(std::string(stage::kProgram) + ": " + message);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace

Visitor::Visitor(const House &house, fs::path folder, SoupWebsocketConnection *socket,
                 std::function<void()> gone)
    : house_(house),
      folder_(std::move(folder)),
      socket_(SOUP_WEBSOCKET_CONNECTION(g_object_ref(socket))),
      gone_(std::move(gone)),
      files_{house.world, house.calls} {
    fs::create_directories(folder_);
    soup_websocket_connection_set_max_incoming_payload_size(socket, kLongestFile + kLongestMessage);
    const auto onMessage = +[](SoupWebsocketConnection *, int, GBytes *message, gpointer self) {
        static_cast<Visitor *>(self)->hear(message);
    };
    const auto onClosed =
        +[](SoupWebsocketConnection *, gpointer self) { static_cast<Visitor *>(self)->gone_(); };
    g_signal_connect(socket, "message", G_CALLBACK(onMessage), this);
    g_signal_connect(socket, "closed", G_CALLBACK(onClosed), this);
}

Visitor::~Visitor() {
    g_signal_handlers_disconnect_by_data(socket_.get(), this);
    if (soup_websocket_connection_get_state(socket_.get()) == SOUP_WEBSOCKET_STATE_OPEN) {
        soup_websocket_connection_close(socket_.get(), SOUP_WEBSOCKET_CLOSE_GOING_AWAY, nullptr);
    }
    phones_.reset();
    coming_.reset();
    buried_.clear();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void Visitor::tell(const std::string &report) {
    if (soup_websocket_connection_get_state(socket_.get()) == SOUP_WEBSOCKET_STATE_OPEN) {
        soup_websocket_connection_send_text(socket_.get(), report.c_str());
    }
}

void Visitor::hear(GBytes *message) {
    lastLook_ = Time::now();
    gsize size = 0;
    const auto *const bytes = static_cast<const char *>(g_bytes_get_data(message, &size));
    try {
        std::visit([this](const auto &asked) { take(asked); }, readAsk({bytes, size}));
    } catch (const std::exception &error) {
        tell(report::failed(error.what()));
    }
}

void Visitor::take(const ask::Open &open) {
    bury(std::move(phones_));
    next_.clear();
    this->open({nullptr, open, files_, {}});
}

void Visitor::take(const ask::Step &step) {
    letTimePass();
    if (!phones_ && !coming_) {
        tell(report::refused(step.line, "no phone is open"));
    } else if (list_.size() + next_.size() >= kMostSteps) {
        tell(report::refused(step.line, "the list of steps is full; open the phone anew"));
    } else if (isMove(step.line)) {
        next_.addMove(step.line);
    } else if (next_.size() < kMostWaiting) {
        next_.add(step.line);
    } else if (!std::exchange(tooMuch_, true)) {
        tell(report::refused(step.line, "too much at once; what comes now is left out"));
    }
    nextIsAsked_ = true;
    beginTurn();
}

void Visitor::take(const ask::Speed &speed) {
    letTimePass();
    clock_.setSpeed(speed.speed);
    nextIsAsked_ = true;
    beginTurn();
}

void Visitor::take(const ask::Watch &watch) {
    View &view = views_[watch.side];
    view.views = watch.views;
    view.happenings = watch.happenings;
    viewsAreDue_ = true;
    tickWhenNeeded();
}

void Visitor::take(const ask::Drew &drew) {
    View &view = views_[drew.side];
    view.drawn = std::clamp(drew.picture, view.drawn, view.sent);
    payPictures();
}

bool Visitor::View::keepsUp() const { return sent - drawn < kMostUnderWay; }

void Visitor::payPictures() {
    if (std::ranges::any_of(views_, [](const auto &entry) {
            return entry.second.isOwed && entry.second.keepsUp();
        })) {
        beginTurn();
    }
}

void Visitor::take(const ask::File &file) {
    if (!phones_) {
        throw BadMessage("a file needs a phone that shows it; open one first");
    }
    if (phones_->isBusy()) {  // with a turn that the new phones have to play as well
        file_ = file;
        return;
    }
    const bool isWorld = file.name.ends_with(".json");
    if (!isWorld && !file.name.ends_with(".csv")) {
        throw BadMessage("a world's name ends with .json, a list of calls' with .csv");
    }
    Coming coming{nullptr, open_, files_, file.name};
    coming.open.steps = list_.lines();
    if (!file.text.empty()) {
        coming.kept = folder_ / (std::to_string(++folders_) + (isWorld ? ".json" : ".csv"));
        std::ofstream stream(coming.kept, std::ios::binary);
        stream << file.text;
    }
    fs::path &place = isWorld ? coming.files.world : coming.files.calls;
    const fs::path &usual = isWorld ? house_.world : house_.calls;
    place = file.text.empty() ? usual : coming.kept;
    open(std::move(coming));
}

void Visitor::open(Coming coming) {
    if (coming_) {
        bury(std::move(coming_->phones));
    }
    coming_ = std::make_unique<Coming>(std::move(coming));
    Opening opening{coming_->open.ios,
                    coming_->open.screen,
                    true,
                    coming_->files.world,
                    coming_->files.calls,
                    {},
                    {}};
    opening.turn.lines = coming_->open.steps;
    coming_->phones = std::make_unique<Phones>(
        house_.program, folder_ / std::to_string(++folders_), coming_->open.sides, opening,
        Phones::Listener{
            [this] {
                if (coming_ && !coming_->phones->isBusy()) {
                    moveIn();
                } else if (phones_ && !phones_->isBusy()) {
                    endTurn();
                }
            },
            [this](const std::string &report) { tell(report); },
            [this](const std::string &why) { couldNotOpen(why); },
            [this](Side side, const std::vector<std::string> &log) { mourn(side, log); }});
}

void Visitor::mourn(Side side, const std::vector<std::string> &log) {
    tell(report::died(side, log));
    if (coming_ && coming_->phones->sides().empty()) {
        couldNotOpen("the phone's process ended while it was opened");
    }
    if (phones_ && phones_->sides().empty()) {
        bury(std::move(phones_));
    }
}

void Visitor::couldNotOpen(const std::string &why) {
    const std::unique_ptr<Coming> coming = std::move(coming_);
    if (!coming) {
        return;  // the other phone has said so
    }
    if (coming->file.empty()) {
        tell(report::failed(why));
    } else {
        tell(report::mistakes(coming->file,
                              linesOf(replaced(why, coming->kept.string(), coming->file))));
    }
    bury(std::move(coming->phones));
    clock_.restart();
}

void Visitor::moveIn() {
    const std::unique_ptr<Coming> coming = std::move(coming_);
    bury(std::move(phones_));
    phones_ = std::move(coming->phones);
    open_ = coming->open;
    files_ = coming->files;
    list_.clear();
    for (const std::string &line : open_.steps) {
        list_.add(line);
    }
    untold_.clear();
    if (!coming->file.empty()) {
        std::vector<std::string> lines;
        for (const std::string &warning : phones_->warnings()) {
            lines.push_back(
                replaced(linesOf(warning).front(), coming->kept.string(), coming->file));
        }
        tell(report::took(coming->file, lines));
    }
    tell(report::opened(open_, phones_->sides()));
    if (const auto refusals = phones_->refusals(); !refusals.empty()) {
        const Refusal &first = refusals.front();
        tell(report::refused(open_.steps[first.line], first.why));
    }
    for (auto &[side, view] : views_) {
        view.sent = 0;
        view.drawn = 0;
        view.isOwed = false;
    }
    sendPictures();
    viewsAreDue_ = true;
    lastViews_ = {};
    clock_.restart();
    beginTurn();
}

void Visitor::letTimePass() {
    if (phones_ && !coming_) {
        next_.add(clock_.passed());
    }
}

void Visitor::beginTurn() {
    if (!phones_ || coming_ || phones_->isBusy()) {
        return;
    }
    const auto now = Time::now();
    const bool views = viewsAreDue_ && now - lastViews_ > kBetweenViews;
    turn_ = next_.lines();
    next_.clear();
    turnIsAsked_ = std::exchange(nextIsAsked_, false);
    tooMuch_ = false;
    if (views) {
        viewsAreDue_ = false;
        lastViews_ = now;
    }
    phones_->take([&](Side side) { return turnOf(side, views); });
}

Turn Visitor::turnOf(Side side, bool views) {
    View &view = views_[side];
    view.isOwed = !view.keepsUp();
    return {turn_, !view.isOwed, views && view.views, view.happenings};
}

void Visitor::endTurn() {
    const std::vector<Refusal> refusals = phones_->refusals();
    auto refusal = refusals.begin();
    bool hasSteps = false;
    for (size_t i = 0; i < turn_.size(); ++i) {
        if (refusal != refusals.end() && refusal->line == i) {
            tell(report::refused(turn_[i], refusal->why));
            ++refusal;
            continue;
        }
        list_.add(turn_[i]);
        untold_.add(turn_[i]);
        hasSteps = hasSteps || !waitOf(turn_[i]);
    }
    turn_.clear();
    tellWhatWasDone();
    viewsAreDue_ = viewsAreDue_ || hasSteps;
    sendPictures();
    if (const auto file = std::exchange(file_, std::nullopt)) {
        take(*file);
        return;
    }
    if (std::ranges::any_of(next_.lines(), [](const auto &line) { return !waitOf(line); })) {
        beginTurn();
    }
    payPictures();
    tickWhenNeeded();
}

void Visitor::tellWhatWasDone() {
    const auto now = Time::now();
    if (!untold_.empty() && (turnIsAsked_ || now - lastTold_ > kBetweenWaits)) {
        tell(report::did(untold_.lines()));
        untold_.clear();
        lastTold_ = now;
    }
}

void Visitor::sendPictures() {
    for (const Side side : phones_->sides()) {
        const auto picture = phones_->picture(side);
        if (!picture.empty() &&
            soup_websocket_connection_get_state(socket_.get()) == SOUP_WEBSOCKET_STATE_OPEN) {
            // It is copied at once, and only once.
            GBytes *const bytes = g_bytes_new_static(picture.data(), picture.size());
            soup_websocket_connection_send_message(socket_.get(), SOUP_WEBSOCKET_DATA_BINARY,
                                                   bytes);
            g_bytes_unref(bytes);
            views_[side].sent = phones_->pictures(side);
            viewsAreDue_ = true;
        }
    }
}

void Visitor::tick() {
    if (Time::now() - lastLook_ > house_.sleep) {
        fallAsleep();
        return;
    }
    letTimePass();
    if (!next_.empty() || viewsAreDue_) {
        beginTurn();
    }
}

void Visitor::tickWhenNeeded() {
    if (!phones_) {
        return;
    }
    const std::chrono::milliseconds time = phones_->isLively() ? kLively
                                           : viewsAreDue_      ? kSoon
                                                               : kQuiet;
    if (!tick_.isSet() || time != tickTime_) {
        tickTime_ = time;
        tick_ = Source::every(time, [this] { tick(); });
    }
}

void Visitor::fallAsleep() {
    tick_.stop();
    bury(std::move(phones_));
    if (coming_) {
        bury(std::move(coming_->phones));
        coming_.reset();
    }
    tell(report::asleep());
}

void Visitor::bury(std::unique_ptr<Phones> phones) {
    if (phones) {
        phones->fallSilent();
        buried_.push_back(std::move(phones));
        burial_ = Source::every(0ms, [this] {
            burial_.stop();
            buried_.clear();
        });
    }
}

}  // namespace serve
