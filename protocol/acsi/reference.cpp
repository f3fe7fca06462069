// SPDX-License-Identifier: Apache-2.0
#include "acsi/reference.h"

#include "mms/data.h"
#include "mms/datatext.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace acsi {

using wording::say;

namespace {

constexpr char wireSeparator = '$';
constexpr char referenceSeparator = '.';

mms::Error wrong(std::string_view text, const mms::Text &why)
{
    return {say("%1 is not a reference: %2.", mms::quoted(text), why), 0};
}

bool isName(std::string_view text, std::string_view forbidden)
{
    return !text.empty() && std::ranges::all_of(text, [forbidden](char c) {
        return c > ' ' && c < '\x7f' && forbidden.find(c) == std::string_view::npos;
    });
}

bool isDeviceName(std::string_view text)
{
    return isName(text, "/$()");
}

bool isPartName(std::string_view text)
{
    return isName(text, "/$().");
}

/// The text before the next separator, which is taken away together with it. Nothing after the
/// last part.
std::optional<std::string_view> takePart(std::optional<std::string_view> &rest)
{
    if (!rest)
        return std::nullopt;
    const std::size_t end = rest->find(wireSeparator);
    const std::string_view part = rest->substr(0, end);
    if (end == std::string_view::npos)
        rest.reset();
    else
        rest->remove_prefix(end + 1);
    return part;
}

std::optional<PathStep> stepFrom(std::string_view text)
{
    PathStep step;
    const std::size_t open = text.find('(');
    if (open != std::string_view::npos) {
        if (text.back() != ')')
            return std::nullopt;
        const char *const end = text.data() + text.size() - 1;
        std::uint32_t element = 0;
        const auto [stopped, error] = std::from_chars(text.data() + open + 1, end, element);
        if (error != std::errc() || stopped != end)
            return std::nullopt;
        step.element = element;
    }
    step.name = text.substr(0, open);
    if (!isPartName(step.name))
        return std::nullopt;
    return step;
}

/// Appends what is behind the functional constraint; the error's text when it is wrong.
std::optional<mms::Text> appendPath(std::optional<std::string_view> rest,
                                    std::vector<PathStep> &path)
{
    while (const auto part = takePart(rest)) {
        auto step = stepFrom(*part);
        if (!step)
            return say("%1 is no name of data.", mms::quoted(*part));
        path.push_back(std::move(*step));
    }
    return std::nullopt;
}

mms::Result<Reference> parseItem(std::string_view whole, std::string_view device,
                                 std::string_view item)
{
    Reference reference;
    if (!isDeviceName(device))
        return wrong(whole, say("the name of the logical device is missing or wrong."));
    reference.device = device;
    std::optional<std::string_view> rest = item;
    reference.node = *takePart(rest);
    if (!isPartName(reference.node))
        return wrong(whole, say("the name of the logical node is missing or wrong."));
    if (const auto constraint = takePart(rest)) {
        reference.constraint = functionalConstraintFrom(*constraint);
        if (!reference.constraint)
            return wrong(whole, say("%1 is no functional constraint.", mms::quoted(*constraint)));
    }
    if (const auto error = appendPath(rest, reference.path))
        return wrong(whole, *error);
    return reference;
}

std::string pathText(const std::vector<PathStep> &path, char separator)
{
    std::string text;
    for (const PathStep &step : path) {
        text += separator;
        text += step.name;
        if (step.element) {
            text += '(';
            text += std::to_string(*step.element);
            text += ')';
        }
    }
    return text;
}

using Steps = std::vector<PathStep>;

/// The parts of a variable behind an element of an array.
std::vector<mms::AlternateAccess> partsOf(Steps::const_iterator step, Steps::const_iterator end)
{
    std::vector<mms::AlternateAccess> parts;
    if (step == end)
        return parts;
    auto inner = partsOf(step + 1, end);
    if (step->element) {
        auto element = mms::AlternateAccess::ofElement(*step->element, std::move(inner));
        inner.clear();
        inner.push_back(std::move(element));
    }
    parts.push_back(mms::AlternateAccess::ofComponent(step->name, std::move(inner)));
    return parts;
}

} // namespace

mms::Result<Reference> parseReference(std::string_view text)
{
    const std::size_t slash = text.find('/');
    if (slash != std::string_view::npos)
        return parseItem(text, text.substr(0, slash), text.substr(slash + 1));
    if (!isDeviceName(text))
        return wrong(text, say("the name of the logical device is missing or wrong."));
    Reference reference;
    reference.device = text;
    return reference;
}

mms::Result<Reference> parseReference(std::string_view device, std::string_view text)
{
    return parseItem(text, device, text);
}

std::string toText(const Reference &reference)
{
    return reference.node.empty() ? reference.device : reference.device + '/' + itemText(reference);
}

std::string itemText(const Reference &reference)
{
    std::string text = reference.node;
    if (reference.constraint) {
        text += wireSeparator;
        text += toText(*reference.constraint);
    }
    return text + pathText(reference.path, wireSeparator);
}

std::string objectReferenceText(const Reference &reference)
{
    std::string text = reference.device;
    if (!reference.node.empty())
        text += '/' + reference.node;
    return text + pathText(reference.path, referenceSeparator);
}

mms::VariableAccess accessOf(const Reference &reference)
{
    const auto begin = reference.path.begin();
    const auto end = reference.path.end();
    const auto array =
        std::find_if(begin, end, [](const PathStep &step) { return step.element.has_value(); });
    std::string item = reference.node;
    if (reference.constraint) {
        item += wireSeparator;
        item += toText(*reference.constraint);
    }
    for (auto step = begin; step != end; ++step) {
        item += wireSeparator;
        item += step->name;
        if (step == array)
            break;
    }
    mms::VariableAccess access;
    access.variable = mms::ObjectName::inDomain(reference.device, item);
    if (array != end) {
        access.parts.push_back(
            mms::AlternateAccess::ofElement(*array->element, partsOf(array + 1, end)));
    }
    return access;
}

mms::Result<Reference> referenceOf(const mms::VariableAccess &access)
{
    const auto *name = std::get_if<mms::ObjectName>(&access.variable);
    if (!name || name->scope != mms::Scope::Domain)
        return wrong(mms::toText(access), say("it is not in a logical device."));
    auto reference = parseItem(mms::toText(access), name->domain, name->item);
    if (!reference)
        return reference;
    std::vector<PathStep> &path = reference->path;
    const auto *parts = &access.parts;
    while (!parts->empty()) {
        const mms::AlternateAccess &part = parts->front();
        if (parts->size() > 1)
            return wrong(mms::toText(access), say("it names several parts."));
        if (part.kind == mms::AlternateAccess::Kind::Component) {
            if (!reference->constraint)
                return wrong(mms::toText(access), say("the functional constraint is missing."));
            // Some peers name a component of a component at once.
            if (const auto error = appendPath(part.component, path))
                return wrong(mms::toText(access), *error);
        } else if (part.kind == mms::AlternateAccess::Kind::Index && !path.empty() &&
                   !path.back().element) {
            path.back().element = part.index;
        } else {
            return wrong(mms::toText(access), say("it names more than one element of one array."));
        }
        parts = &part.parts;
    }
    return reference;
}

mms::Result<Reference> referenceOf(std::string_view domain, std::string_view item)
{
    return parseItem(item, domain, item);
}

} // namespace acsi
