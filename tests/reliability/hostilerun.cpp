// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/reliability/hostilerun.h>

#include <QThreadPool>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned longestRun = 60; ///< seconds

QByteArray contentOf(int file)
{
    QByteArray content;
    char buffer[4096];
    ::lseek(file, 0, SEEK_SET);
    for (ssize_t got = 0; (got = ::read(file, buffer, sizeof buffer)) > 0;)
        content.append(buffer, int(got));
    ::close(file);
    return content;
}

[[noreturn]] void runChild(const std::function<int()> &body, int output)
{
    ::dup2(output, STDOUT_FILENO);
    ::dup2(output, STDERR_FILENO);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    ::alarm(longestRun);
    const int code = body();
    std::fflush(nullptr);
    ::_exit(code); // nothing is destroyed: it is all the parent's
}

} // namespace

void ForkedRuns::start(const std::function<int()> &body, const Report &report)
{
    while (int(m_running.size()) >= m_atOnce)
        collectOne();
    // Qt 6 reads the fonts in another thread, which a child would wait for and not have.
    QThreadPool::globalInstance()->waitForDone();
    std::fflush(nullptr);
    const int output = ::memfd_create("run", 0);
    const pid_t child = ::fork();
    if (output < 0 || child < 0) {
        std::perror("fork");
        std::_Exit(2);
    }
    if (child == 0)
        runChild(body, output);
    m_running[int(child)] = {output, report};
}

void ForkedRuns::finish()
{
    while (!m_running.empty())
        collectOne();
}

void ForkedRuns::collectOne()
{
    int status = 0;
    const pid_t child = ::wait(&status);
    const auto found = m_running.find(int(child));
    if (found == m_running.end())
        return;
    const Running ended = found->second;
    m_running.erase(found);
    Outcome outcome{WIFEXITED(status) && WEXITSTATUS(status) == 0, contentOf(ended.output)};
    if (WIFSIGNALED(status))
        outcome.printed.append("\nended by ").append(::strsignal(WTERMSIG(status)));
    ended.report(outcome);
}
