// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/reader.h"

#include <cstdint>
#include <functional>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace scl {

/// Elements that the reader looks at. Everything else (Private, Text, Substation, other name
/// spaces …) is skipped with all it holds, except below Services, where every name counts.
enum class Tag : std::uint8_t {
    Other,
    Scl,
    Header,
    Communication,
    SubNetwork,
    ConnectedAp,
    Address,
    P,
    Gse,
    Smv,
    MinTime,
    MaxTime,
    Ied,
    Services,
    AccessPoint,
    Server,
    ServerAt,
    LDevice,
    Ln0,
    Ln,
    DataSet,
    Fcda,
    ReportControl,
    TrgOps,
    OptFields,
    RptEnabled,
    ClientLn,
    LogControl,
    Log,
    GseControl,
    SampledValueControl,
    SmvOpts,
    SettingControl,
    Doi,
    Sdi,
    Dai,
    Val,
    DataTypeTemplates,
    LNodeType,
    Do,
    DoType,
    Sdo,
    Da,
    DaType,
    Bda,
    EnumType,
    EnumVal
};

enum class Attr : std::uint8_t {
    Other,
    ActSg,
    ApName,
    AppId,
    BType,
    BufOvfl,
    BufTime,
    Buffered,
    CbName,
    Cdc,
    ConfRev,
    ConfigRef,
    ConfigVersion,
    Count,
    DaName,
    DatSet,
    DataRef,
    DataSet,
    Dchg,
    Desc,
    DoName,
    Dupd,
    EntryId,
    Fc,
    FixedOffs,
    Gi,
    Id,
    IedName,
    Indexed,
    Inst,
    IntgPd,
    Ix,
    LdInst,
    LdName,
    LnClass,
    LnInst,
    LnType,
    LogEna,
    LogName,
    Manufacturer,
    Max,
    Multicast,
    Name,
    NameLength,
    NofAsdu,
    NumOfSgs,
    Ord,
    Period,
    Prefix,
    Qchg,
    ReasonCode,
    RefreshTime,
    Release,
    ResvTms,
    Revision,
    RptId,
    SAddr,
    SGroup,
    SampleRate,
    SampleSynchronized,
    Security,
    Segmentation,
    SeqNum,
    SmpMod,
    SmpRate,
    SmvId,
    Timeout,
    TimeStamp,
    ToolId,
    Transient,
    Type,
    ValKind,
    Version
};

struct XmlAttribute
{
    Attr id = Attr::Other;
    std::string_view name; ///< set only below Services
    std::string_view value;
};

constexpr std::uint32_t noElement = 0xFFFFFFFFU;

struct XmlElement
{
    Tag tag = Tag::Other;
    std::uint32_t line = 0;
    std::uint32_t parent = noElement;
    std::uint32_t firstChild = noElement;
    std::uint32_t next = noElement;
    std::uint32_t attributesBegin = 0;
    std::uint32_t attributesEnd = 0;
    std::string_view name; ///< set only below Services
    std::string_view text;
};

/// The elements of an SCL file that matter, in one vector, parents before children. Texts live in
/// the memory resource that was given to `parseXml`.
class XmlTree
{
public:
    std::vector<XmlElement> elements; ///< the root element first
    std::vector<XmlAttribute> attributes;
    std::vector<Finding> findings; ///< about encoding and name spaces

    const XmlElement &at(std::uint32_t element) const { return elements[element]; }
    /// Value of an attribute, empty when it is not given.
    std::string_view value(std::uint32_t element, Attr attribute) const;
    /// Null when the attribute is not given.
    const std::string_view *find(std::uint32_t element, Attr attribute) const;
    std::span<const XmlAttribute> attributesOf(std::uint32_t element) const;
    std::uint32_t firstChild(std::uint32_t element, Tag tag) const;

    template <typename Visitor>
    void forEachChild(std::uint32_t element, Visitor &&visit) const
    {
        for (std::uint32_t i = elements[element].firstChild; i != noElement; i = elements[i].next)
            visit(i, elements[i].tag);
    }

    /// "SCL/IED[BAY1]/AccessPoint[S1]".
    std::string pathOf(std::uint32_t element) const;
};

/// Gives up to `size` further bytes of the file; 0 at its end, negative on a read error.
using ByteSource = std::function<std::ptrdiff_t(char *buffer, std::size_t size)>;

struct XmlError
{
    ReadError error = ReadError::None;
    wording::Text text;
    std::uint32_t line = 0;
};

/// Parses what @p source gives into @p tree.
/// @param totalBytes size of the file for the progress; 0 when it is not known
/// @param progress called with 0 … 1, may be empty
XmlError parseXml(const ByteSource &source, std::uint64_t totalBytes, const ReadOptions &options,
                  const std::function<void(double)> &progress, std::pmr::memory_resource &memory,
                  XmlTree &tree);

std::string_view tagName(Tag tag);

} // namespace scl
