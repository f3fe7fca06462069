// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QWidget>

class QLabel;
class QTreeWidgetItem;
class PropertyTree;
class QtProperty;
class QtVariantEditorFactory;
class QtVariantPropertyManager;

/// Shows properties in a tree of two columns, name and value, and lets the operator edit values.
///
/// A click on a row, or Enter, F2 or Space on the current one, opens its editor. Enter and the loss
/// of focus commit, Tab commits and goes on to the next row, Escape leaves the value as it was.
/// What is no value yet is not taken: Enter keeps the editor open, the loss of focus keeps the
/// value, and a line below the tree says why. Enter and Escape that concern an editor never reach
/// the window.
///
/// The browser owns neither properties nor managers nor factories; one that is deleted leaves the
/// browser by itself. GUI thread only.
class PROPERTYBROWSER_EXPORT QtTreePropertyBrowser : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool rootIsDecorated READ rootIsDecorated WRITE setRootIsDecorated)
    Q_PROPERTY(bool alternatingRowColors READ alternatingRowColors WRITE setAlternatingRowColors)
    Q_PROPERTY(bool headerVisible READ isHeaderVisible WRITE setHeaderVisible)
    Q_PROPERTY(ResizeMode resizeMode READ resizeMode WRITE setResizeMode)
    Q_PROPERTY(bool propertiesWithoutValueMarked READ propertiesWithoutValueMarked WRITE
                   setPropertiesWithoutValueMarked)

public:
    /// How the columns get their widths; the value column also takes what is left.
    enum ResizeMode {
        Interactive = 0,      ///< by the operator
        Stretch = 1,          ///< in equal parts
        Fixed = 2,            ///< by nobody
        ResizeToContents = 3, ///< by the longest text
    };
    Q_ENUM(ResizeMode)

    explicit QtTreePropertyBrowser(QWidget *parent = nullptr);
    ~QtTreePropertyBrowser() override;

    /// Whether groups have a branch to fold them by; true at first.
    bool rootIsDecorated() const;
    void setRootIsDecorated(bool show);

    /// True at first.
    bool alternatingRowColors() const;
    void setAlternatingRowColors(bool enable);

    /// True at first.
    bool isHeaderVisible() const;
    void setHeaderVisible(bool visible);

    /// Stretch at first.
    ResizeMode resizeMode() const { return m_resizeMode; }
    void setResizeMode(ResizeMode mode);

    /// Whether properties without value stand out in bold on a background of their own; false at
    /// first.
    bool propertiesWithoutValueMarked() const { return m_markWithoutValue; }
    void setPropertiesWithoutValueMarked(bool mark);

    /// Make the manager's properties editable with the factory, instead of one given earlier.
    void setFactoryForManager(QtVariantPropertyManager *manager, QtVariantEditorFactory *factory);
    /// Make the manager's properties read-only.
    void unsetFactoryForManager(QtVariantPropertyManager *manager);

    /// Append a property and its sub-properties at the top level. Does nothing for null and for one
    /// that is shown already.
    void addProperty(QtProperty *property);
    /// Take a top-level property out; it is not deleted.
    void removeProperty(QtProperty *property);
    /// Take all properties out; they are not deleted. What stands in an open editor is dropped.
    void clear();
    /// The top-level properties in their order.
    QList<QtProperty *> properties() const;

    /// Make a property the current one and open its editor.
    void editProperty(QtProperty *property);

private:
    void watch(QtVariantPropertyManager *manager);
    void insert(QtProperty *property, QTreeWidgetItem *parent);
    void insertSubProperties(QtProperty *property);
    void forget(QTreeWidgetItem *item);
    void refresh(QtProperty *property);
    void spanGroups();
    void refreshAll();
    void rebuild(QtProperty *property);
    void dropDestroyed(QtProperty *property);
    QtVariantEditorFactory *factoryFor(const QtProperty *property) const;
    void showMessage(const QString &message);

    PropertyTree *m_tree;
    QLabel *m_message;
    ResizeMode m_resizeMode = Stretch;
    bool m_markWithoutValue = false;
    QList<QtVariantPropertyManager *> m_watched;
    QHash<const QtVariantPropertyManager *, QPointer<QtVariantEditorFactory>> m_factories;
    QHash<QtProperty *, QTreeWidgetItem *> m_items;
    QHash<const QTreeWidgetItem *, QtProperty *> m_properties;
    QSet<QtProperty *> m_toSpan; ///< may have been deleted since then
};
