// SPDX-License-Identifier: Apache-2.0
#include "resolverpart.h"

#include <cstring>

namespace scl {

using wording::say;

void ResolverPart::addFinding(Finding finding)
{
    m_document.hasErrors = m_document.hasErrors || finding.severity == Severity::Error;
    if (m_document.findings.size() < m_options.maxFindings)
        m_document.findings.push_back(std::move(finding));
    else
        ++m_document.findingsLeftOut;
}

bool ResolverPart::roomForFinding(Severity severity)
{
    if (m_document.findings.size() < m_options.maxFindings)
        return true;
    m_document.hasErrors = m_document.hasErrors || severity == Severity::Error;
    ++m_document.findingsLeftOut;
    return false;
}

void ResolverPart::report(Severity severity, std::uint32_t element, wording::Text text)
{
    if (roomForFinding(severity))
        addFinding({severity, m_tree.at(element).line, m_tree.pathOf(element), std::move(text)});
}

bool ResolverPart::stopped()
{
    if (m_state.error.error != ReadError::None)
        return true;
    if (m_options.cancelled && m_options.cancelled->load(std::memory_order_relaxed))
        m_state.error = {ReadError::Cancelled, say("The import was cancelled."), 0};
    return m_state.error.error != ReadError::None;
}

std::string_view ResolverPart::keepText(std::string_view text)
{
    if (text.empty())
        return {};
    auto *copy = static_cast<char *>(m_document.memory().allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

std::string_view ResolverPart::joined(std::string_view a, std::string_view b, std::string_view c)
{
    if (b.empty() && c.empty())
        return a;
    m_scratch.assign(a);
    m_scratch += b;
    m_scratch += c;
    return keepText(m_scratch);
}

std::uint32_t ResolverPart::number(std::uint32_t element, Attr attribute, std::string_view name,
                                   std::uint32_t fallback)
{
    const std::string_view *text = m_tree.find(element, attribute);
    if (!text || trimmed(*text).empty())
        return fallback;
    if (const auto result = toNumber<std::uint32_t>(*text))
        return *result;
    error(element, say("\"%1\" is not a value of %2; %3 is used.", *text, name, fallback));
    return fallback;
}

bool ResolverPart::flag(std::uint32_t element, Attr attribute, bool fallback)
{
    const std::string_view *text = m_tree.find(element, attribute);
    if (!text || trimmed(*text).empty())
        return fallback;
    const std::string_view bare = trimmed(*text);
    if (equalIgnoringCase(bare, "true") || bare == "1")
        return true;
    if (equalIgnoringCase(bare, "false") || bare == "0")
        return false;
    error(element, say("\"%1\" is neither \"true\" nor \"false\"; %2 is used.", *text,
                       fallback ? "true" : "false"));
    return fallback;
}

} // namespace scl
