// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filecomparison.h"

#include "acsi/discovery.h"

#include <devicemodel/logicalnode.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <memory>

/// Makes the data objects of logical nodes from the types that a device tells of them.
class DataObjectBuilder
{
public:
    /// @param isCompared with an SCL file: what only the device has is marked so
    explicit DataObjectBuilder(bool isCompared);

    /// Adds the data objects of @p source to @p node, whose name and class are known. Without a
    /// file they depend on type and class alone, but for the references: these begin with @p base,
    /// logical device, logical node and "$". @p file may be null.
    void addDataObjects(LogicalNode &node, const acsi::NodeDescription &source, const QString &base,
                        const LogicalNode *file);

private:
    /// Data of one name under one functional constraint.
    struct Part
    {
        QString fc;
        const mms::TypeDescription *type;
    };
    using Parts = QVector<Part>;

    /// Where the standard's classes know the data from: attributes below a common data class.
    struct Context
    {
        QString commonDataClass;
        QStringList path;

        Context below(const QString &name) const
        {
            return {commonDataClass, path + QStringList(name)};
        }
    };

    static QVector<const mms::TypeDescription *> typesOf(const Parts &parts);
    std::unique_ptr<DataObject> dataObject(const QString &name, const Parts &parts,
                                           const DataObject *file);
    /// The members of structures of one name under several constraints.
    void addChildren(QList<DAO *> &children, const Parts &parts,
                     const FileComparison::FileItems<DAO> &file, const Context &context,
                     const QString &path);
    /// The members that stand at other places of their structures than in the file.
    QSet<QString> movedMembers(const Parts &parts, const FileComparison::FileItems<DAO> &file,
                               const QString &path) const;
    void addNode(QList<DAO *> &children, const QString &name, const Parts &parts, const DAO *file,
                 bool isCompared, const Context &context, const QString &path);
    /// Fills a leaf; its state.
    quint32 leaf(DataAttribute &attribute, const QString &name, const Part &part, const DAO *file,
                 const Context &context, const QString &path) const;
    /// A structure or an array.
    std::unique_ptr<DAO> group(const QString &name, const Parts &parts, const DAO *file,
                               bool isCompared, const Context &context, const QString &path);
    void addElements(DAO &array, const QString &name, const Parts &parts,
                     const FileComparison::FileItems<DAO> &file, bool isCompared,
                     const Context &context, const QString &path);
    /// Whether a structure is a data object inside a data object; otherwise it is an attribute.
    bool isDataObject(const QString &name, const Parts &parts, const DAO *file,
                      const QString &innerClass, const Context &context) const;

    bool m_isCompared;
    const QList<DAO *> m_nothing;
    /// Of the node that is being built.
    QString m_lnClass;
    QString m_nodeName;
    QString m_base;
    const acsi::NodeDescription *m_source = nullptr;
    QString m_dataObject;
};
