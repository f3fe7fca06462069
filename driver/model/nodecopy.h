// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/logicalnode.h>

#include <QtCore/QSet>
#include <QtCore/QString>

#include <memory>

/// Equal texts of a model, each kept in memory once.
class SharedTexts
{
public:
    /// An empty text stays as it is, null or not.
    const QString &shared(const QString &text)
    {
        return text.isEmpty() ? text : *m_texts.insert(text);
    }
    /// All of the data objects but the references, no two of which are the same.
    void share(const QList<DataObject *> &objects);

private:
    void share(DAO &node);

    QSet<QString> m_texts;
};

/// The data objects of a logical node as a pattern for nodes that differ from it in their
/// references alone. What is copied lies together in memory; as it was put together it lies all
/// over it, which is most of the time that writing a model takes.
class NodePattern
{
public:
    /// @param base what all references begin with, to be replaced
    NodePattern(std::unique_ptr<LogicalNode> node, QString base, SharedTexts &texts);

    /// Appends copies of the data objects, the references of which begin with @p base instead.
    void copyTo(LogicalNode &node, const QString &base) const;

private:
    DAO *copyOf(const DAO &source, const QString &base) const;

    std::unique_ptr<LogicalNode> m_node;
    QString m_base;
};
