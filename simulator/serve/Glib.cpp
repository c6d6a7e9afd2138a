// The loop keeps a source's work while it runs it, so the work may end its source.
#include "serve/Glib.hpp"

#include <glib-unix.h>

namespace serve {
namespace {

Source::Work *kept(Source::Work work) { return new Source::Work(std::move(work)); }

gboolean run(gpointer work) {
    (*static_cast<Source::Work *>(work))();
    return G_SOURCE_CONTINUE;
}

gboolean runForFile(gint, GIOCondition, gpointer work) { return run(work); }

void forget(gpointer work) { delete static_cast<Source::Work *>(work); }

guint onFile(int file, int condition, Source::Work work) {
    return g_unix_fd_add_full(G_PRIORITY_DEFAULT, file, static_cast<GIOCondition>(condition),
                              &runForFile, kept(std::move(work)), &forget);
}

}  // namespace

Source Source::every(std::chrono::milliseconds time, Work work) {
    return Source(g_timeout_add_full(G_PRIORITY_DEFAULT, static_cast<guint>(time.count()), &run,
                                     kept(std::move(work)), &forget));
}

Source Source::onInput(int file, Work work) {
    return Source(onFile(file, G_IO_IN | G_IO_HUP | G_IO_ERR, std::move(work)));
}

Source Source::onOutput(int file, Work work) {
    return Source(onFile(file, G_IO_OUT | G_IO_HUP | G_IO_ERR, std::move(work)));
}

Source Source::onSignal(int signal, Work work) {
    return Source(
        g_unix_signal_add_full(G_PRIORITY_DEFAULT, signal, &run, kept(std::move(work)), &forget));
}

void Source::stop() {
    if (const guint number = std::exchange(number_, 0); number != 0) {
        g_source_remove(number);
    }
}

}  // namespace serve
