// SPDX-License-Identifier: Apache-2.0
#include "xmlparser.h"

#include "xmlencoding.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>

namespace scl {

using wording::say;

namespace {

constexpr std::string_view sclNamespace = "http://www.iec.ch/61850/2003/SCL";

std::string_view store(std::pmr::memory_resource &memory, std::string_view text)
{
    if (text.empty())
        return {};
    auto *copy = static_cast<char *>(memory.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

bool holdsText(Tag tag)
{
    return tag == Tag::Val || tag == Tag::P || tag == Tag::EnumVal || tag == Tag::MinTime ||
           tag == Tag::MaxTime;
}

class Parser
{
public:
    Parser(const ReadOptions &options, std::pmr::memory_resource &memory, XmlTree &tree)
        : m_options(options)
        , m_memory(memory)
        , m_tree(tree)
        , m_parser(XML_ParserCreate(nullptr), &XML_ParserFree)
    {
        XML_SetUserData(m_parser.get(), this);
        XML_SetElementHandler(
            m_parser.get(),
            [](void *self, const XML_Char *name, const XML_Char **attributes) {
                static_cast<Parser *>(self)->startElement(name, attributes);
            },
            [](void *self, const XML_Char *) { static_cast<Parser *>(self)->endElement(); });
        XML_SetCharacterDataHandler(m_parser.get(), [](void *self, const XML_Char *text, int size) {
            auto *parser = static_cast<Parser *>(self);
            ++parser->m_events;
            if (parser->m_collecting)
                parser->m_text.append(text, static_cast<std::size_t>(size));
        });
        XML_SetEntityDeclHandler(m_parser.get(), [](void *self, const XML_Char *, int,
                                                    const XML_Char *, int, const XML_Char *,
                                                    const XML_Char *, const XML_Char *,
                                                    const XML_Char *) {
            static_cast<Parser *>(self)->fail(
                ReadError::NotWellFormed,
                say("The file declares an entity, which is not accepted."));
        });
        XML_SetStartDoctypeDeclHandler(m_parser.get(), [](void *self, const XML_Char *,
                                                          const XML_Char *systemId,
                                                          const XML_Char *publicId, int) {
            if (systemId || publicId) {
                static_cast<Parser *>(self)->fail(
                    ReadError::NotWellFormed,
                    say("The file refers to an external document type, which is not accepted."));
            }
        });
        XML_SetSkippedEntityHandler(m_parser.get(), [](void *self, const XML_Char *name, int) {
            static_cast<Parser *>(self)->fail(ReadError::NotWellFormed,
                                              say("The entity \"%1\" is not declared.", name));
        });
        XML_SetUnknownEncodingHandler(m_parser.get(), unknownEncoding, nullptr);
    }

    XmlError run(const ByteSource &source, std::uint64_t totalBytes,
                 const std::function<void(double)> &progress)
    {
        if (!m_parser)
            return {ReadError::CannotRead, say("There is not enough memory to read the file."), 0};

        std::uint64_t done = 0;
        std::size_t chunk = firstChunk;
        bool atEnd = false;
        while (!atEnd) {
            if (m_options.cancelled && m_options.cancelled->load(std::memory_order_relaxed))
                return {ReadError::Cancelled, say("The import was cancelled."), 0};
            void *buffer = XML_GetBuffer(m_parser.get(), static_cast<int>(chunk));
            if (!buffer)
                return {ReadError::CannotRead, say("There is not enough memory to read the file."),
                        0};
            const std::ptrdiff_t got = source(static_cast<char *>(buffer), chunk);
            if (got < 0)
                return {ReadError::CannotRead, say("The file cannot be read to its end."), 0};
            atEnd = got == 0;
            const std::string_view bytes(static_cast<const char *>(buffer),
                                         static_cast<std::size_t>(got));
            if (done == 0) {
                if (bytes.find_first_not_of(" \t\r\n") == std::string_view::npos)
                    return {ReadError::NotWellFormed, say("The file is empty."), 0};
                const EncodingChoice choice = chooseEncoding(bytes);
                if (choice.name)
                    XML_SetEncoding(m_parser.get(), choice.name);
                if (!choice.remark.empty())
                    m_tree.findings.push_back({Severity::Info, 1, "SCL", choice.remark});
            }
            done += bytes.size();
            if (done > m_options.maxBytes) {
                return {ReadError::TooLarge,
                        say("The file is larger than %1 bytes.", m_options.maxBytes), 0};
            }
            const std::uint64_t eventsBefore = m_events;
            const XML_Status status =
                XML_ParseBuffer(m_parser.get(), static_cast<int>(got), atEnd ? 1 : 0);
            if (m_error.error != ReadError::None)
                return m_error;
            if (status != XML_STATUS_OK)
                return parserError();
            // A token longer than the chunk is scanned again from its start with each further
            // chunk; doubling keeps the total linear.
            if (m_events == eventsBefore && chunk < largestChunk)
                chunk *= 2;
            if (progress && totalBytes > 0) {
                progress(
                    std::min(1.0, static_cast<double>(done) / static_cast<double>(totalBytes)));
            }
        }
        return {};
    }

private:
    static constexpr std::size_t firstChunk = std::size_t{256} * 1024;
    static constexpr std::size_t largestChunk = std::size_t{256} * 1024 * 1024;

    static constexpr std::size_t maxNamespaces = 256;
    static constexpr std::size_t maxUnboundReported = 16;

    struct Binding
    {
        std::uint32_t depth;
        std::string prefix;
        std::string uri;
    };

    struct Open
    {
        std::uint32_t element;
        std::uint32_t lastChild;
    };

    void fail(ReadError error, wording::Text text)
    {
        if (m_error.error != ReadError::None)
            return;
        m_error = {error, std::move(text), currentLine()};
        XML_StopParser(m_parser.get(), XML_FALSE);
    }

    static wording::Text wordsOf(XML_Error code)
    {
        switch (code) {
        case XML_ERROR_SYNTAX:
            return say("syntax error");
        case XML_ERROR_UNCLOSED_TOKEN:
            return say("unclosed token");
        case XML_ERROR_TAG_MISMATCH:
            return say("mismatched tag");
        case XML_ERROR_DUPLICATE_ATTRIBUTE:
            return say("duplicate attribute");
        case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
            return say("junk after document element");
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
            return say("unclosed CDATA section");
        case XML_ERROR_MISPLACED_XML_PI:
            return say("XML or text declaration not at start of entity");
        default:
            return say("error %1", static_cast<int>(code));
        }
    }

    XmlError parserError()
    {
        const XML_Error code = XML_GetErrorCode(m_parser.get());
        wording::Text text;
        switch (code) {
        case XML_ERROR_NO_ELEMENTS:
            text = say("The file ends before its root element is complete.");
            break;
        case XML_ERROR_INVALID_TOKEN:
            text =
                say("A character is not allowed here, or does not belong to the file's encoding.");
            break;
        case XML_ERROR_PARTIAL_CHAR:
            text = say("The file ends within a character.");
            break;
        case XML_ERROR_UNKNOWN_ENCODING:
        case XML_ERROR_INCORRECT_ENCODING:
            text = say("The file's encoding is not the one declared, or it is not known.");
            break;
        case XML_ERROR_NO_MEMORY:
            text = say("There is not enough memory to read the file.");
            break;
        default:
            text = say("The file is not well-formed XML: %1.", wordsOf(code));
            break;
        }
        return {ReadError::NotWellFormed, std::move(text), currentLine()};
    }

    std::uint32_t currentLine() const
    {
        return static_cast<std::uint32_t>(std::min<std::uint64_t>(
            XML_GetCurrentLineNumber(m_parser.get()), std::numeric_limits<std::uint32_t>::max()));
    }

    std::string_view uriOf(std::string_view prefix, bool &bound) const
    {
        const auto binding =
            std::find_if(m_bindings.rbegin(), m_bindings.rend(),
                         [prefix](const Binding &candidate) { return candidate.prefix == prefix; });
        bound = prefix.empty() || binding != m_bindings.rend();
        return binding == m_bindings.rend() ? std::string_view() : std::string_view(binding->uri);
    }

    void startElement(std::string_view name, const XML_Char **attributes)
    {
        ++m_events;
        if (m_error.error != ReadError::None)
            return;
        if (++m_depth > m_options.maxElementDepth) {
            fail(ReadError::TooLarge,
                 say("Elements are nested deeper than %1 levels.", m_options.maxElementDepth));
            return;
        }
        if (m_skipFrom != 0)
            return;
        bindNamespaces(attributes);

        std::string_view prefix;
        std::string_view local = name;
        if (const std::size_t colon = name.find(':'); colon != std::string_view::npos) {
            prefix = name.substr(0, colon);
            local = name.substr(colon + 1);
        }

        if (m_depth == 1) {
            if (local != "SCL") {
                fail(ReadError::NotScl,
                     say("This is not an SCL file: its root element is \"%1\".", name));
                return;
            }
            setRootNamespace(prefix);
        } else if (!isSclNamespace(prefix)) {
            m_skipFrom = m_depth;
            return;
        }

        const Tag tag = tagOf(local);
        if (tag == Tag::Other && m_servicesFrom == 0) {
            m_skipFrom = m_depth;
            return;
        }
        addElement(tag, local, attributes);
    }

    void bindNamespaces(const XML_Char **attributes)
    {
        for (const XML_Char **attribute = attributes; *attribute; attribute += 2) {
            const std::string_view name = attribute[0];
            if (!name.starts_with("xmlns"))
                continue;
            if (name.size() == 5)
                m_bindings.push_back({m_depth, {}, attribute[1]});
            else if (name[5] == ':')
                m_bindings.push_back({m_depth, std::string(name.substr(6)), attribute[1]});
            else
                continue;
            m_namespaceCacheValid = false;
        }
        if (m_bindings.size() > maxNamespaces) {
            fail(ReadError::TooLarge, say("More than %1 name spaces are declared.", maxNamespaces));
        }
    }

    void setRootNamespace(std::string_view prefix)
    {
        bool bound = false;
        m_rootNamespace = uriOf(prefix, bound);
        if (m_rootNamespace.empty()) {
            m_tree.findings.push_back(
                {Severity::Info, currentLine(), "SCL",
                 say("The root element is in no name space; it should be in \"%1\".",
                     sclNamespace)});
        } else if (m_rootNamespace != sclNamespace) {
            m_tree.findings.push_back(
                {Severity::Info, currentLine(), "SCL",
                 say("The root element is in the name space \"%1\" instead of \"%2\".",
                     m_rootNamespace, sclNamespace)});
        }
    }

    bool isSclNamespace(std::string_view prefix)
    {
        if (m_namespaceCacheValid && prefix == m_cachedPrefix)
            return m_cachedIsScl;
        bool bound = false;
        const std::string_view uri = uriOf(prefix, bound);
        if (!bound && m_unbound.size() < maxUnboundReported &&
            std::find(m_unbound.begin(), m_unbound.end(), prefix) == m_unbound.end()) {
            m_unbound.emplace_back(prefix);
            m_tree.findings.push_back(
                {Severity::Warning, currentLine(), "SCL",
                 say("The name space prefix \"%1\" is not declared; its elements are skipped.",
                     prefix)});
        }
        m_cachedPrefix = std::string(prefix);
        m_cachedIsScl = bound && uri == m_rootNamespace;
        m_namespaceCacheValid = true;
        return m_cachedIsScl;
    }

    void addElement(Tag tag, std::string_view name, const XML_Char **attributes)
    {
        const auto index = static_cast<std::uint32_t>(m_tree.elements.size());
        XmlElement element;
        element.tag = tag;
        element.line = currentLine();
        element.attributesBegin = static_cast<std::uint32_t>(m_tree.attributes.size());
        const bool keepNames = m_servicesFrom != 0;
        if (keepNames)
            element.name = store(m_memory, name);
        for (const XML_Char **attribute = attributes; *attribute; attribute += 2) {
            const std::string_view attributeName = attribute[0];
            const Attr id = attributeOf(attributeName);
            if (keepNames ? attributeName.find(':') != std::string_view::npos : id == Attr::Other)
                continue;
            m_tree.attributes.push_back(
                {id, keepNames ? store(m_memory, attributeName) : std::string_view(),
                 store(m_memory, attribute[1])});
        }
        element.attributesEnd = static_cast<std::uint32_t>(m_tree.attributes.size());
        if (!m_open.empty()) {
            Open &parent = m_open.back();
            element.parent = parent.element;
            if (parent.lastChild == noElement)
                m_tree.elements[parent.element].firstChild = index;
            else
                m_tree.elements[parent.lastChild].next = index;
            parent.lastChild = index;
        }
        m_tree.elements.push_back(element);
        m_open.push_back({index, noElement});
        if (tag == Tag::Services && m_servicesFrom == 0)
            m_servicesFrom = m_depth;
        m_collecting = holdsText(tag);
        m_text.clear();
    }

    void endElement()
    {
        ++m_events;
        if (m_error.error != ReadError::None)
            return;
        const std::uint32_t depth = m_depth--;
        if (m_skipFrom == 0) {
            if (m_collecting) {
                m_tree.elements[m_open.back().element].text = store(m_memory, m_text);
                m_collecting = false;
            }
            m_open.pop_back();
            if (m_servicesFrom == depth)
                m_servicesFrom = 0;
        } else if (m_skipFrom == depth) {
            m_skipFrom = 0;
        }
        while (!m_bindings.empty() && m_bindings.back().depth >= depth) {
            m_bindings.pop_back();
            m_namespaceCacheValid = false;
        }
    }

    const ReadOptions &m_options;
    std::pmr::memory_resource &m_memory;
    XmlTree &m_tree;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> m_parser;
    XmlError m_error;
    std::vector<Open> m_open;
    std::vector<Binding> m_bindings;
    std::vector<std::string> m_unbound;
    std::string m_rootNamespace;
    std::string m_cachedPrefix;
    std::string m_text;
    std::uint64_t m_events = 0;
    std::uint32_t m_depth = 0;
    std::uint32_t m_skipFrom = 0;     // depth of the outermost skipped element, 0 outside
    std::uint32_t m_servicesFrom = 0; // likewise for Services
    bool m_collecting = false;
    bool m_namespaceCacheValid = false;
    bool m_cachedIsScl = false;
};

} // namespace

XmlError parseXml(const ByteSource &source, std::uint64_t totalBytes, const ReadOptions &options,
                  const std::function<void(double)> &progress, std::pmr::memory_resource &memory,
                  XmlTree &tree)
{
    return Parser(options, memory, tree).run(source, totalBytes, progress);
}

} // namespace scl
