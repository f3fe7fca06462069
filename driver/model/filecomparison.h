// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/discovery.h"
#include "acsi/reportblock.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

/// What a device is compared in with its SCL file, and the marks that come of it.
namespace FileComparison {

constexpr quint8 absent = 0;
constexpr quint8 agreeing = 1;
constexpr quint8 additional = 2;
constexpr quint8 differing = 3;

/// What only the file has, marked so.
std::unique_ptr<DAO> absentCopy(const DAO &source);
std::unique_ptr<DataObject> absentCopy(const DataObject &source);
std::unique_ptr<DataSet> absentCopy(const DataSet &source);
std::unique_ptr<LogicalNode> absentCopy(const LogicalNode &source);
std::unique_ptr<LogicalDevice> absentCopy(const LogicalDevice &source);

/// The names of both that stand at another place among them.
QSet<QString> outOfOrder(const QStringList &names, const QStringList &fileNames);

/// Enters the members of a data set; @p file may be null. A data set that is empty on the device
/// stays empty.
void fillDataSet(DataSet &shown, const acsi::DataSetDescription &set, const DataSet *file);

/// Whether the block has the settings of the file's. @p dataSet is the reference that the device
/// gives.
bool isAsConfigured(const ReportControlBlock &block, const QString &logicalDevice,
                    std::string_view dataSet, const ReportControlBlock &file);

inline QString nameOf(const DAO &node)
{
    return node.name();
}

template <typename Item>
QString nameOf(const Item &item)
{
    return item.name;
}

/// Items of the file in their order, each with its name; null without a file.
template <typename Item>
class FileItems
{
public:
    FileItems() = default;
    explicit FileItems(const QList<Item *> *items)
        : m_items(items)
    {
        if (!items)
            return;
        for (const Item *item : *items)
            m_byName.insert(nameOf(*item), item);
    }

    const Item *find(const QString &name) const { return m_byName.value(name); }
    bool isGiven() const { return m_items != nullptr; }

    /// The names of the file in its order, then the others.
    QStringList order(const QStringList &names) const
    {
        if (!m_items)
            return names;
        QStringList result;
        QSet<QString> taken;
        for (const Item *item : *m_items) {
            const QString name = nameOf(*item);
            if (!taken.contains(name))
                result.append(name);
            taken.insert(name);
        }
        for (const QString &name : names) {
            if (!taken.contains(name))
                result.append(name);
        }
        return result;
    }

private:
    const QList<Item *> *m_items = nullptr;
    QHash<QString, const Item *> m_byName;
};

} // namespace FileComparison
