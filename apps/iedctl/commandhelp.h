// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

namespace CLI {
class App;
class FormatterBase;
} // namespace CLI

/// How the help of the program looks: lines that fit a terminal, broken between words.
std::shared_ptr<CLI::FormatterBase> helpFormatter();

/// What stands below the help of the program and of each of its commands.
void addFooters(CLI::App &program);

/// The help of the program and of every command, those of families included.
std::string helpOfAll(const CLI::App &program);
