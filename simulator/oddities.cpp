// SPDX-License-Identifier: Apache-2.0
#include "simulator/oddities.h"

#include <algorithm>
#include <array>

namespace sim {

namespace {

/// One oddity that can be asked for by name.
struct OddityCase
{
    std::string_view name;    ///< "sorted-names"
    std::string_view purpose; ///< one sentence
    bool Oddities::*flag;
};

/// In the order of the documentation.
constexpr std::array cases = {
    // Names and types
    OddityCase{"names-in-type-order",
               "Lists of variable names are in the order of the types, not sorted.",
               &Oddities::namesInTypeOrder},
    OddityCase{"fixed-lengths",
               "Texts and octets are described with a fixed length where they have a greatest one.",
               &Oddities::fixedLengths},

    // Values

    // Reports

    // Control
    OddityCase{"strict-control",
               "A cancel has to repeat all of what it cancels, and who operates has to say who.",
               &Oddities::strictControl},
    OddityCase{"slow-control", "Every command takes three seconds.", &Oddities::slowControl},
    OddityCase{"no-cancel-of-commands", "A command that is being executed cannot be cancelled.",
               &Oddities::noCancelOfCommands},
    OddityCase{"cause-after-answer", "Why a control is refused is told after it was refused.",
               &Oddities::causeAfterAnswer},
    OddityCase{"cause-names-object", "Causes name the object without the service: LD/LN$CO$Data.",
               &Oddities::causeNamesObject},
    OddityCase{"cause-names-reference", "Causes name the object as LD/LN.Data.",
               &Oddities::causeNamesReference},
    OddityCase{"cause-names-oper", "Causes name Oper, whichever service was refused.",
               &Oddities::causeNamesOper},
    OddityCase{"cause-without-number", "Causes bear the control number 0.",
               &Oddities::causeWithoutNumber},

    // Setting groups
    OddityCase{"delayed-activation",
               "A setting group that was made active becomes it only half a second later.",
               &Oddities::delayedActivation},
    OddityCase{"kept-edit-group",
               "EditSG keeps its number after CnfEdit until its client writes another one.",
               &Oddities::keptEditGroup},
    OddityCase{"write-only-edit", "The settings of the edited group can be written but not read.",
               &Oddities::writeOnlyEdit},
    OddityCase{"shared-edit", "Every client may write and confirm what another one is editing.",
               &Oddities::sharedEdit},

    // Files
    OddityCase{"unreadable-files",
               "Files are listed, but opening one is refused with the cause \"other\".",
               &Oddities::unreadableFiles},
    OddityCase{"empty-pages", "Lists of files begin with pages without an entry.",
               &Oddities::emptyPages},
    OddityCase{"short-times", "The times of files have no seconds.", &Oddities::shortTimes},
    OddityCase{"cut-files", "Files end after half of the octets that were announced.",
               &Oddities::cutFiles},
    OddityCase{"refused-close", "Closing a file is refused.", &Oddities::refusedClose},

    // Associations
    OddityCase{"no-status", "The service Status is neither declared nor answered.",
               &Oddities::noStatus},
};

} // namespace

mms::Result<void> addOddity(Oddities &oddities, std::string_view name)
{
    const auto found = std::ranges::find(cases, name, &OddityCase::name);
    if (found == cases.end()) {
        std::string message = "\"" + std::string(name) + "\" is no oddity; there are";
        for (const OddityCase &each : cases)
            message += (&each == cases.begin() ? " " : ", ") + std::string(each.name);
        return mms::Error{mms::verbatim(message + "."), 0};
    }
    oddities.*found->flag = true;
    return {};
}

std::string odditiesHelp()
{
    std::string text = "What a device may do otherwise (--odd NAME):\n";
    for (const OddityCase &each : cases)
        text += "  " + std::string(each.name) + "\n      " + std::string(each.purpose) + "\n";
    return text;
}

} // namespace sim
