// SPDX-License-Identifier: Apache-2.0
#include "xmltree.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>

namespace scl {

using wording::say;
namespace {

template <typename Id>
struct NamedId
{
    std::string_view name;
    Id id{};
};

/// Name to number by open addressing, filled at compile time.
template <typename Id, std::size_t Slots>
class NameTable
{
public:
    template <std::size_t Count>
    constexpr explicit NameTable(const std::array<NamedId<Id>, Count> &names)
    {
        static_assert(Count * 2 <= Slots);
        for (const NamedId<Id> &entry : names) {
            std::size_t slot = hash(entry.name);
            while (!m_slots[slot].name.empty())
                slot = (slot + 1) % Slots;
            m_slots[slot] = entry;
        }
    }

    Id find(std::string_view name) const
    {
        if (name.empty())
            return Id::Other;
        for (std::size_t slot = hash(name); !m_slots[slot].name.empty();
             slot = (slot + 1) % Slots) {
            if (m_slots[slot].name == name)
                return m_slots[slot].id;
        }
        return Id::Other;
    }

    std::string_view name(Id id) const
    {
        for (const NamedId<Id> &entry : m_slots) {
            if (!entry.name.empty() && entry.id == id)
                return entry.name;
        }
        return {};
    }

private:
    static constexpr std::size_t hash(std::string_view name)
    {
        const auto at = [name](std::size_t i) {
            return static_cast<std::size_t>(static_cast<unsigned char>(name[i]));
        };
        return (name.size() * 37 + at(0) * 11 + at(name.size() / 2) * 5 + at(name.size() - 1) * 3) %
               Slots;
    }

    std::array<NamedId<Id>, Slots> m_slots{};
};

constexpr std::array tagNames = {
    NamedId<Tag>{"SCL", Tag::Scl},
    NamedId<Tag>{"Header", Tag::Header},
    NamedId<Tag>{"Communication", Tag::Communication},
    NamedId<Tag>{"SubNetwork", Tag::SubNetwork},
    NamedId<Tag>{"ConnectedAP", Tag::ConnectedAp},
    NamedId<Tag>{"Address", Tag::Address},
    NamedId<Tag>{"P", Tag::P},
    NamedId<Tag>{"GSE", Tag::Gse},
    NamedId<Tag>{"SMV", Tag::Smv},
    NamedId<Tag>{"MinTime", Tag::MinTime},
    NamedId<Tag>{"MaxTime", Tag::MaxTime},
    NamedId<Tag>{"IED", Tag::Ied},
    NamedId<Tag>{"Services", Tag::Services},
    NamedId<Tag>{"AccessPoint", Tag::AccessPoint},
    NamedId<Tag>{"Server", Tag::Server},
    NamedId<Tag>{"ServerAt", Tag::ServerAt},
    NamedId<Tag>{"LDevice", Tag::LDevice},
    NamedId<Tag>{"LN0", Tag::Ln0},
    NamedId<Tag>{"LN", Tag::Ln},
    NamedId<Tag>{"DataSet", Tag::DataSet},
    NamedId<Tag>{"FCDA", Tag::Fcda},
    NamedId<Tag>{"ReportControl", Tag::ReportControl},
    NamedId<Tag>{"TrgOps", Tag::TrgOps},
    NamedId<Tag>{"OptFields", Tag::OptFields},
    NamedId<Tag>{"RptEnabled", Tag::RptEnabled},
    NamedId<Tag>{"ClientLN", Tag::ClientLn},
    NamedId<Tag>{"LogControl", Tag::LogControl},
    NamedId<Tag>{"Log", Tag::Log},
    NamedId<Tag>{"GSEControl", Tag::GseControl},
    NamedId<Tag>{"SampledValueControl", Tag::SampledValueControl},
    NamedId<Tag>{"SmvOpts", Tag::SmvOpts},
    NamedId<Tag>{"SettingControl", Tag::SettingControl},
    NamedId<Tag>{"DOI", Tag::Doi},
    NamedId<Tag>{"SDI", Tag::Sdi},
    NamedId<Tag>{"DAI", Tag::Dai},
    NamedId<Tag>{"Val", Tag::Val},
    NamedId<Tag>{"DataTypeTemplates", Tag::DataTypeTemplates},
    NamedId<Tag>{"LNodeType", Tag::LNodeType},
    NamedId<Tag>{"DO", Tag::Do},
    NamedId<Tag>{"DOType", Tag::DoType},
    NamedId<Tag>{"SDO", Tag::Sdo},
    NamedId<Tag>{"DA", Tag::Da},
    NamedId<Tag>{"DAType", Tag::DaType},
    NamedId<Tag>{"BDA", Tag::Bda},
    NamedId<Tag>{"EnumType", Tag::EnumType},
    NamedId<Tag>{"EnumVal", Tag::EnumVal},
};

constexpr std::array attributeNames = {
    NamedId<Attr>{"actSG", Attr::ActSg},
    NamedId<Attr>{"apName", Attr::ApName},
    NamedId<Attr>{"appID", Attr::AppId},
    NamedId<Attr>{"bType", Attr::BType},
    NamedId<Attr>{"bufOvfl", Attr::BufOvfl},
    NamedId<Attr>{"bufTime", Attr::BufTime},
    NamedId<Attr>{"buffered", Attr::Buffered},
    NamedId<Attr>{"cbName", Attr::CbName},
    NamedId<Attr>{"cdc", Attr::Cdc},
    NamedId<Attr>{"confRev", Attr::ConfRev},
    NamedId<Attr>{"configRef", Attr::ConfigRef},
    NamedId<Attr>{"configVersion", Attr::ConfigVersion},
    NamedId<Attr>{"count", Attr::Count},
    NamedId<Attr>{"daName", Attr::DaName},
    NamedId<Attr>{"datSet", Attr::DatSet},
    NamedId<Attr>{"dataRef", Attr::DataRef},
    NamedId<Attr>{"dataSet", Attr::DataSet},
    NamedId<Attr>{"dchg", Attr::Dchg},
    NamedId<Attr>{"desc", Attr::Desc},
    NamedId<Attr>{"doName", Attr::DoName},
    NamedId<Attr>{"dupd", Attr::Dupd},
    NamedId<Attr>{"entryID", Attr::EntryId},
    NamedId<Attr>{"fc", Attr::Fc},
    NamedId<Attr>{"fixedOffs", Attr::FixedOffs},
    NamedId<Attr>{"gi", Attr::Gi},
    NamedId<Attr>{"id", Attr::Id},
    NamedId<Attr>{"iedName", Attr::IedName},
    NamedId<Attr>{"indexed", Attr::Indexed},
    NamedId<Attr>{"inst", Attr::Inst},
    NamedId<Attr>{"intgPd", Attr::IntgPd},
    NamedId<Attr>{"ix", Attr::Ix},
    NamedId<Attr>{"ldInst", Attr::LdInst},
    NamedId<Attr>{"ldName", Attr::LdName},
    NamedId<Attr>{"lnClass", Attr::LnClass},
    NamedId<Attr>{"lnInst", Attr::LnInst},
    NamedId<Attr>{"lnType", Attr::LnType},
    NamedId<Attr>{"logEna", Attr::LogEna},
    NamedId<Attr>{"logName", Attr::LogName},
    NamedId<Attr>{"manufacturer", Attr::Manufacturer},
    NamedId<Attr>{"max", Attr::Max},
    NamedId<Attr>{"multicast", Attr::Multicast},
    NamedId<Attr>{"name", Attr::Name},
    NamedId<Attr>{"nameLength", Attr::NameLength},
    NamedId<Attr>{"nofASDU", Attr::NofAsdu},
    NamedId<Attr>{"numOfSGs", Attr::NumOfSgs},
    NamedId<Attr>{"ord", Attr::Ord},
    NamedId<Attr>{"period", Attr::Period},
    NamedId<Attr>{"prefix", Attr::Prefix},
    NamedId<Attr>{"qchg", Attr::Qchg},
    NamedId<Attr>{"reasonCode", Attr::ReasonCode},
    NamedId<Attr>{"refreshTime", Attr::RefreshTime},
    NamedId<Attr>{"release", Attr::Release},
    NamedId<Attr>{"resvTms", Attr::ResvTms},
    NamedId<Attr>{"revision", Attr::Revision},
    NamedId<Attr>{"rptID", Attr::RptId},
    NamedId<Attr>{"sAddr", Attr::SAddr},
    NamedId<Attr>{"sGroup", Attr::SGroup},
    NamedId<Attr>{"sampleRate", Attr::SampleRate},
    NamedId<Attr>{"sampleSynchronized", Attr::SampleSynchronized},
    NamedId<Attr>{"security", Attr::Security},
    NamedId<Attr>{"segmentation", Attr::Segmentation},
    NamedId<Attr>{"seqNum", Attr::SeqNum},
    NamedId<Attr>{"smpMod", Attr::SmpMod},
    NamedId<Attr>{"smpRate", Attr::SmpRate},
    NamedId<Attr>{"smvID", Attr::SmvId},
    NamedId<Attr>{"timeout", Attr::Timeout},
    NamedId<Attr>{"timeStamp", Attr::TimeStamp},
    NamedId<Attr>{"toolID", Attr::ToolId},
    NamedId<Attr>{"transient", Attr::Transient},
    NamedId<Attr>{"type", Attr::Type},
    NamedId<Attr>{"valKind", Attr::ValKind},
    NamedId<Attr>{"version", Attr::Version},
};

constexpr NameTable<Tag, 128> tagTable{tagNames};
constexpr NameTable<Attr, 256> attributeTable{attributeNames};

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

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char &c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

/// Encoding named by the XML declaration of a file in an encoding that contains ASCII, else empty.
std::string_view declaredEncoding(std::string_view head)
{
    if (head.starts_with("\xEF\xBB\xBF"))
        head.remove_prefix(3);
    if (!head.starts_with("<?xml"))
        return {};
    head = head.substr(0, head.find("?>"));
    std::size_t position = head.find("encoding");
    if (position == std::string_view::npos)
        return {};
    position = head.find_first_of("'\"", position);
    if (position == std::string_view::npos)
        return {};
    const std::size_t end = head.find(head[position], position + 1);
    if (end == std::string_view::npos)
        return {};
    return head.substr(position + 1, end - position - 1);
}

struct EncodingChoice
{
    const char *name = nullptr; // null leaves the choice to the declaration
    wording::Text remark;
};

EncodingChoice chooseEncoding(std::string_view head)
{
    // The mark at the start is right even where the declaration names another encoding.
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF"))
        return {"UTF-16", {}};
    const std::string_view declared = declaredEncoding(head);
    const std::string name = lowered(declared);
    if (name == "utf8" || name == "utf_8") {
        return {"UTF-8",
                say("The encoding is written \"%1\" instead of \"UTF-8\"; it is read as UTF-8.",
                    declared)};
    }
    if (name.starts_with("utf-16") || name.starts_with("utf16") || name == "ucs-2" ||
        name == "unicode") {
        return {
            "UTF-8",
            say("The encoding is declared as \"%1\", but the file holds single bytes; it is read as UTF-8.",
                declared)};
    }
    if (name == "iso8859-1" || name == "iso_8859-1" || name == "iso-8859-1" || name == "latin1" ||
        name == "latin-1") {
        const bool usual = name == "iso-8859-1";
        return {"ISO-8859-1",
                usual ? wording::Text()
                      : say("The encoding is written \"%1\" instead of \"ISO-8859-1\".", declared)};
    }
    return {};
}

/// Windows-1252 differs from ISO-8859-1 in these 32 positions; -1 marks those without a character.
constexpr std::array<int, 32> windows1252 = {
    0x20AC, -1,     0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, -1,     0x017D, -1,     -1,     0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, -1,     0x017E, 0x0178};

int XMLCALL unknownEncoding(void *, const XML_Char *name, XML_Encoding *info)
{
    const std::string encoding = lowered(name);
    if (encoding != "windows-1252" && encoding != "cp1252" && encoding != "iso-8859-15")
        return XML_STATUS_ERROR;
    for (int i = 0; i < 256; ++i)
        info->map[i] = i;
    if (encoding == "iso-8859-15") {
        constexpr std::array<std::pair<int, int>, 8> changes = {{{0xA4, 0x20AC},
                                                                 {0xA6, 0x0160},
                                                                 {0xA8, 0x0161},
                                                                 {0xB4, 0x017D},
                                                                 {0xB8, 0x017E},
                                                                 {0xBC, 0x0152},
                                                                 {0xBD, 0x0153},
                                                                 {0xBE, 0x0178}}};
        for (const auto &[position, character] : changes)
            info->map[position] = character;
    } else {
        std::copy(windows1252.begin(), windows1252.end(), info->map + 0x80);
    }
    info->data = nullptr;
    info->convert = nullptr;
    info->release = nullptr;
    return XML_STATUS_OK;
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

        const Tag tag = tagTable.find(local);
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
            const Attr id = attributeTable.find(attributeName);
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

const std::string_view *XmlTree::find(std::uint32_t element, Attr attribute) const
{
    const XmlElement &e = elements[element];
    for (std::uint32_t i = e.attributesBegin; i < e.attributesEnd; ++i) {
        if (attributes[i].id == attribute)
            return &attributes[i].value;
    }
    return nullptr;
}

std::string_view XmlTree::value(std::uint32_t element, Attr attribute) const
{
    const std::string_view *found = find(element, attribute);
    return found ? *found : std::string_view();
}

std::span<const XmlAttribute> XmlTree::attributesOf(std::uint32_t element) const
{
    const XmlElement &e = elements[element];
    return std::span(attributes).subspan(e.attributesBegin, e.attributesEnd - e.attributesBegin);
}

std::uint32_t XmlTree::firstChild(std::uint32_t element, Tag tag) const
{
    std::uint32_t child = elements[element].firstChild;
    while (child != noElement && elements[child].tag != tag)
        child = elements[child].next;
    return child;
}

std::string XmlTree::pathOf(std::uint32_t element) const
{
    std::vector<std::uint32_t> chain;
    for (std::uint32_t i = element; i != noElement; i = elements[i].parent)
        chain.push_back(i);
    std::reverse(chain.begin(), chain.end());
    std::string path;
    for (const std::uint32_t i : chain) {
        const XmlElement &e = elements[i];
        if (!path.empty())
            path += '/';
        path += e.name.empty() ? tagName(e.tag) : e.name;
        std::string key;
        if (e.tag == Tag::Ln || e.tag == Tag::Ln0) {
            key = std::string(value(i, Attr::Prefix)) + std::string(value(i, Attr::LnClass)) +
                  std::string(value(i, Attr::Inst));
        } else {
            for (const Attr attribute : {Attr::Name, Attr::Inst, Attr::Id, Attr::ApName,
                                         Attr::DoName, Attr::CbName, Attr::Ord}) {
                if (const std::string_view *found = find(i, attribute)) {
                    key = *found;
                    break;
                }
            }
            if (e.tag == Tag::Fcda && find(i, Attr::DaName))
                key.append(1, '.').append(value(i, Attr::DaName));
        }
        if (!key.empty()) {
            path += '[';
            path += key;
            path += ']';
        }
    }
    return path;
}

std::string_view tagName(Tag tag)
{
    return tagTable.name(tag);
}

XmlError parseXml(const ByteSource &source, std::uint64_t totalBytes, const ReadOptions &options,
                  const std::function<void(double)> &progress, std::pmr::memory_resource &memory,
                  XmlTree &tree)
{
    return Parser(options, memory, tree).run(source, totalBytes, progress);
}

} // namespace scl
