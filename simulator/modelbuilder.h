// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layoutbuilder.h"
#include "simulator/model.h"

#include "scl/model.h"

#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

namespace sim {

/// Fills a model from the SCL description of an IED.
class Model::Builder
{
public:
    Builder(Model &model, const scl::Ied &ied, const mms::UtcTime &now, bool firstEdition);

    void build();

private:
    struct Prototype
    {
        const Layout *layout = nullptr;
        std::vector<mms::Data> values;
        std::vector<std::uint8_t> flags;
    };

    void addDomain(const scl::LogicalDevice &device);
    void addNode(const scl::LogicalNode &node, std::uint32_t domain);
    const Layout *addLayout(const scl::LogicalNode &node);
    void addInitialValues(const Part &root);
    void applyDefaults(const Part &root, const scl::Template &type);
    void applyDefaultsInside(const Part &part, const scl::Template &type);
    void applyInstances(const Part &root, const scl::LogicalNode &node);
    void applyInside(const Part &part, const scl::Template &type,
                     std::span<const scl::InstanceNode> instances);
    void applyTo(const Part &part, const scl::TemplateNode &node,
                 const scl::InstanceNode &instance);
    void configure(Leaf leaf, const LayoutNode &node, std::span<const scl::ConfiguredValue> values);
    void nameItself(const Part &root, const scl::LogicalNode &node);
    void describeBlocks(const Part &root, const scl::LogicalNode &node, std::string_view domain);
    void setText(const Part &part, std::string_view text);
    void setNumber(const Part &part, std::uint64_t number);

    Model &m_model;
    const scl::Ied &m_ied;
    mms::UtcTime m_now;
    LayoutSettings m_settings;
    std::uint32_t m_activeGroup = 1;
    std::unordered_map<const scl::Template *, Prototype> m_prototypes;
};

} // namespace sim
