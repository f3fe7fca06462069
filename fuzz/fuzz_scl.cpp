// SPDX-License-Identifier: Apache-2.0
#include "driver/model/sclimport.h"

#include <QtCore/QDataStream>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

struct Walked
{
    std::uint64_t leaves = 0;
    std::uint64_t nodes = 0;
};

void walk(const scl::DataNode &data, Walked &walked)
{
    ++walked.nodes;
    if (data.isLeaf()) {
        ++walked.leaves;
        data.value();
    }
    data.forEachChild([&walked](const scl::DataNode &child) { walk(child, walked); });
}

void checkNode(const scl::LogicalNode &node, std::uint64_t limit)
{
    Walked walked;
    node.forEachDataObject([&walked](const scl::DataNode &object) { walk(object, walked); });
    require(walked.leaves == node.leafCount());
    require(walked.nodes <= limit);
    for (const scl::ReportControlBlock &report : node.reports) {
        require(!report.instanceNames.empty());
        require(!report.dataSet || report.dataSet->name == report.dataSetName);
    }
}

} // namespace

/// Read any bytes as an SCL file: either an error or a document whose numbers agree with a walk
/// through it, and whose devices survive their byte form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    scl::ReadOptions options;
    options.maxDataNodes = 20000;
    options.maxFindings = 200;
    const scl::ReadResult result =
        scl::readBytes({reinterpret_cast<const char *>(data), size}, options);
    require((result.document == nullptr) == (result.error != scl::ReadError::None));
    require(result.errorText.empty() == (result.error == scl::ReadError::None));
    if (!result.document)
        return 0;
    for (const scl::Finding &finding : result.document->findings)
        require(!finding.text.empty() && !finding.path.empty() && finding.line > 0);
    for (const scl::Ied &ied : result.document->ieds) {
        ied.forEachDevice([&options](const scl::LogicalDevice &device) {
            for (const scl::LogicalNode &node : device.nodes)
                checkNode(node, options.maxDataNodes);
        });
        scl::countsOf(ied);
        const auto device = SclImport::makeDevice(ied);
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        device->toStream(out);
        require(out.status() == QDataStream::Ok);
        PhysicalDevice again;
        QDataStream in(bytes);
        again.fromStream(in);
        require(in.status() == QDataStream::Ok && in.atEnd());
    }
    return 0;
}
