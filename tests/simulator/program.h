// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace simtest {

/// A run of iedsim; IEDSIM is its path.
class Program
{
public:
    explicit Program(std::vector<std::string> arguments)
    {
        std::array<int, 2> output{};
        std::array<int, 2> errors{};
        EXPECT_EQ(pipe(output.data()), 0);
        EXPECT_EQ(pipe(errors.data()), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, errors[1], STDERR_FILENO);
        for (const int each : {output[0], output[1], errors[0], errors[1]})
            posix_spawn_file_actions_addclose(&actions, each);
        arguments.insert(arguments.begin(), IEDSIM);
        std::vector<char *> words;
        for (std::string &argument : arguments)
            words.push_back(argument.data());
        words.push_back(nullptr);
        EXPECT_EQ(posix_spawn(&m_process, IEDSIM, &actions, nullptr, words.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        close(output[1]);
        close(errors[1]);
        m_output = fdopen(output[0], "r");
        m_errors = fdopen(errors[0], "r");
    }

    ~Program()
    {
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
        fclose(m_output);
        fclose(m_errors);
    }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// The next line on standard output; empty at its end.
    std::string line() { return lineOf(m_output).value_or(std::string()); }

    /// The next line that has @p text in it; empty when there is none.
    std::string lineWith(const std::string &text)
    {
        while (const auto next = lineOf(m_output)) {
            if (next->find(text) != std::string::npos)
                return *next;
        }
        return {};
    }

    /// Of the next IED, as the program tells it.
    std::uint16_t port()
    {
        const std::string told = lineWith("listens on");
        const std::size_t number = told.find("port ");
        EXPECT_NE(number, std::string::npos) << told << errors();
        return number == std::string::npos
                   ? std::uint16_t{0}
                   : static_cast<std::uint16_t>(std::stoul(told.substr(number + 5)));
    }

    pid_t processId() const { return m_process; }
    void signal(int number) { kill(m_process, number); }

    /// Waits for the end; the exit status, negative for a signal.
    int status()
    {
        int status = 0;
        waitpid(m_process, &status, 0);
        m_process = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    std::string output() { return restOf(m_output); }
    std::string errors() { return restOf(m_errors); }

private:
    static std::optional<std::string> lineOf(FILE *stream)
    {
        std::string line;
        for (int letter = fgetc(stream); letter != EOF; letter = fgetc(stream)) {
            if (letter == '\n')
                return line;
            line += static_cast<char>(letter);
        }
        return line.empty() ? std::nullopt : std::optional(line);
    }

    static std::string restOf(FILE *stream)
    {
        std::string text;
        for (int letter = fgetc(stream); letter != EOF; letter = fgetc(stream))
            text += static_cast<char>(letter);
        return text;
    }

    pid_t m_process = 0;
    FILE *m_output = nullptr;
    FILE *m_errors = nullptr;
};

} // namespace simtest
