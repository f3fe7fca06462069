// SPDX-License-Identifier: Apache-2.0
#include "interruption.h"

#include "session.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace {

constexpr char cancelWord = 'c';
constexpr char endWord = 'e';

/// The ends of the pipe over which a signal reaches the thread that may do more than a handler.
std::atomic<int> readEnd{-1};
std::atomic<int> writeEnd{-1};

void tell(char word)
{
    while (write(writeEnd, &word, 1) < 0 && errno == EINTR) {
    }
}

extern "C" void interrupt(int)
{
    const int before = errno;
    Session::interrupted() = true;
    if (!Session::streaming())
        tell(cancelWord);
    // A second signal ends the program where it does not listen to the first.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    errno = before;
}

} // namespace

Interruption::Interruption(std::function<void()> cancel)
    : m_cancel(std::move(cancel))
{
    int ends[2] = {-1, -1};
    if (pipe(ends) == 0) {
        readEnd = ends[0];
        writeEnd = ends[1];
        m_thread = std::thread([this] {
            char word = endWord;
            for (;;) {
                const ssize_t count = read(readEnd, &word, 1);
                if (count < 0 && errno == EINTR)
                    continue;
                if (count != 1 || word == endWord)
                    return;
                m_cancel();
            }
        });
    }
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    if (!m_thread.joinable())
        return;
    tell(endWord);
    m_thread.join();
    close(readEnd.exchange(-1));
    close(writeEnd.exchange(-1));
}
