// SPDX-License-Identifier: Apache-2.0
#include "qttreepropertybrowser.h"

#include "propertydelegate.h"
#include "qtproperty.h"
#include "qtvarianteditorfactory.h"
#include "qtvariantpropertymanager.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace {

enum Column { NameColumn, ValueColumn };

/// Names and values come from devices; what looks like mark-up must not be taken for it.
QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped().prepend(QLatin1String("<qt>")) : text;
}

} // namespace

class PropertyTree : public QTreeWidget
{
public:
    using QTreeWidget::itemFromIndex;
    using QTreeWidget::QTreeWidget;
    using QTreeWidget::scheduleDelayedItemsLayout;

    void editValue(QTreeWidgetItem *item)
    {
        if (!item || !(item->flags() & Qt::ItemIsEditable))
            return;
        setCurrentItem(item, ValueColumn);
        editItem(item, ValueColumn);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2:
        case Qt::Key_Space:
            // Taken in every case: the window's default button must not be pressed by an Enter that
            // was meant for a value.
            if (state() != EditingState)
                editValue(currentItem());
            event->accept();
            return;
        default:
            QTreeWidget::keyPressEvent(event);
        }
    }
};

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget *parent)
    : QWidget(parent)
    , m_tree(new PropertyTree(this))
    , m_message(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree);
    layout->addWidget(m_message);

    m_message->setObjectName(QStringLiteral("message"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->hide();

    m_tree->setObjectName(QStringLiteral("tree"));
    m_tree->setAccessibleName(tr("Properties"));
    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Property"), tr("Value")});
    m_tree->header()->setSectionsMovable(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFocusProxy(m_tree);

    auto *delegate = new PropertyDelegate(
        [this](const QModelIndex &index) {
            PropertyDelegate::Target target;
            if (index.column() == ValueColumn)
                target.property = m_properties.value(m_tree->itemFromIndex(index));
            if (target.property)
                target.factory = factoryFor(target.property);
            return target;
        },
        m_tree);
    m_tree->setItemDelegate(delegate);
    connect(delegate, &PropertyDelegate::accepted, this, [this] { showMessage(QString()); });
    connect(delegate, &PropertyDelegate::refused, this, &QtTreePropertyBrowser::showMessage);
    connect(m_tree, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem *item) { m_tree->editValue(item); });
}

QtTreePropertyBrowser::~QtTreePropertyBrowser() = default;

bool QtTreePropertyBrowser::rootIsDecorated() const
{
    return m_tree->rootIsDecorated();
}

void QtTreePropertyBrowser::setRootIsDecorated(bool show)
{
    m_tree->setRootIsDecorated(show);
}

bool QtTreePropertyBrowser::alternatingRowColors() const
{
    return m_tree->alternatingRowColors();
}

void QtTreePropertyBrowser::setAlternatingRowColors(bool enable)
{
    m_tree->setAlternatingRowColors(enable);
}

bool QtTreePropertyBrowser::isHeaderVisible() const
{
    return !m_tree->isHeaderHidden();
}

void QtTreePropertyBrowser::setHeaderVisible(bool visible)
{
    m_tree->setHeaderHidden(!visible);
}

void QtTreePropertyBrowser::setResizeMode(ResizeMode mode)
{
    m_resizeMode = mode;
    m_tree->header()->setSectionResizeMode(static_cast<QHeaderView::ResizeMode>(mode));
}

void QtTreePropertyBrowser::setPropertiesWithoutValueMarked(bool mark)
{
    if (m_markWithoutValue == mark)
        return;
    m_markWithoutValue = mark;
    refreshAll();
}

void QtTreePropertyBrowser::setFactoryForManager(QtVariantPropertyManager *manager,
                                                 QtVariantEditorFactory *factory)
{
    watch(manager);
    m_factories[manager] = factory;
    connect(factory, &QObject::destroyed, this, &QtTreePropertyBrowser::refreshAll,
            Qt::UniqueConnection);
    refreshAll();
}

void QtTreePropertyBrowser::unsetFactoryForManager(QtVariantPropertyManager *manager)
{
    m_factories.remove(manager);
    refreshAll();
}

void QtTreePropertyBrowser::addProperty(QtProperty *property)
{
    if (property && !m_items.contains(property))
        insert(property, m_tree->invisibleRootItem());
}

void QtTreePropertyBrowser::removeProperty(QtProperty *property)
{
    QTreeWidgetItem *item = m_items.value(property);
    if (!item || item->parent())
        return;
    forget(item);
    delete item;
}

void QtTreePropertyBrowser::clear()
{
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row)
        forget(m_tree->topLevelItem(row));
    m_tree->clear();
    showMessage(QString());
}

QList<QtProperty *> QtTreePropertyBrowser::properties() const
{
    QList<QtProperty *> properties;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row)
        properties.append(m_properties.value(m_tree->topLevelItem(row)));
    return properties;
}

void QtTreePropertyBrowser::editProperty(QtProperty *property)
{
    m_tree->editValue(m_items.value(property));
}

void QtTreePropertyBrowser::watch(QtVariantPropertyManager *manager)
{
    if (m_watched.contains(manager))
        return;
    m_watched.append(manager);
    connect(manager, &QtVariantPropertyManager::propertyChanged, this,
            &QtTreePropertyBrowser::refresh);
    connect(manager, &QtVariantPropertyManager::subPropertiesChanged, this,
            &QtTreePropertyBrowser::rebuild);
    connect(manager, &QtVariantPropertyManager::propertyDestroyed, this,
            &QtTreePropertyBrowser::dropDestroyed);
    connect(manager, &QObject::destroyed, this, [this, manager] {
        m_watched.removeOne(manager);
        m_factories.remove(manager);
    });
}

void QtTreePropertyBrowser::insert(QtProperty *property, QTreeWidgetItem *parent)
{
    watch(property->propertyManager());
    auto *item = new QTreeWidgetItem;
    m_items.insert(property, item);
    m_properties.insert(item, property);
    parent->addChild(item);
    refresh(property);
    insertSubProperties(property);
}

void QtTreePropertyBrowser::insertSubProperties(QtProperty *property)
{
    QTreeWidgetItem *item = m_items.value(property);
    const QList<QtProperty *> subProperties = property->subProperties();
    for (QtProperty *subProperty : subProperties) {
        if (!m_items.contains(subProperty))
            insert(subProperty, item);
    }
    item->setExpanded(true);
}

void QtTreePropertyBrowser::forget(QTreeWidgetItem *item)
{
    // Before the row itself goes: the view ends an open editor then, which must write nowhere.
    m_items.remove(m_properties.take(item));
    for (int row = 0; row < item->childCount(); ++row)
        forget(item->child(row));
}

void QtTreePropertyBrowser::refresh(QtProperty *property)
{
    QTreeWidgetItem *item = m_items.value(property);
    if (!item)
        return;
    const bool hasValue = property->hasValue();
    const QString valueText = hasValue ? property->valueText() : QString();

    item->setText(NameColumn, property->propertyName());
    item->setToolTip(NameColumn, plainToolTip(property->propertyName()));
    item->setText(ValueColumn, valueText);
    item->setToolTip(ValueColumn, plainToolTip(valueText));
    item->setData(ValueColumn, Qt::AccessibleTextRole,
                  hasValue ? tr("%1: %2").arg(property->propertyName(), valueText) : QString());

    Qt::ItemFlags flags = Qt::ItemIsSelectable;
    if (property->isEnabled())
        flags |= Qt::ItemIsEnabled;
    if (property->isEnabled() && hasValue && factoryFor(property))
        flags |= Qt::ItemIsEditable;
    item->setFlags(flags);

    const bool marked = m_markWithoutValue && !hasValue;
    QFont font = m_tree->font();
    font.setBold(marked);
    if (item->isFirstColumnSpanned() == hasValue) {
        if (m_toSpan.isEmpty()) {
            QMetaObject::invokeMethod(this, &QtTreePropertyBrowser::spanGroups,
                                      Qt::QueuedConnection);
        }
        m_toSpan.insert(property);
    }
    for (int column : {NameColumn, ValueColumn}) {
        item->setData(column, Qt::FontRole, marked ? QVariant(font) : QVariant());
        item->setData(column, Qt::BackgroundRole,
                      marked ? QVariant(palette().brush(QPalette::Midlight)) : QVariant());
    }
}

void QtTreePropertyBrowser::spanGroups()
{
    // Together, since the tree is laid out before each: once, when nothing is added in between.
    const QSet<QtProperty *> properties = std::move(m_toSpan);
    m_toSpan.clear();
    for (QtProperty *property : properties) {
        if (QTreeWidgetItem *item = m_items.value(property))
            item->setFirstColumnSpanned(!property->hasValue());
    }
}

void QtTreePropertyBrowser::refreshAll()
{
    // Rows are looked for one by one as long as there is a layout to keep right.
    m_tree->scheduleDelayedItemsLayout();
    const QList<QtProperty *> shown = m_items.keys();
    for (QtProperty *property : shown)
        refresh(property);
}

void QtTreePropertyBrowser::rebuild(QtProperty *property)
{
    QTreeWidgetItem *item = m_items.value(property);
    if (!item)
        return;
    for (int row = 0; row < item->childCount(); ++row)
        forget(item->child(row));
    qDeleteAll(item->takeChildren());
    insertSubProperties(property);
}

void QtTreePropertyBrowser::dropDestroyed(QtProperty *property)
{
    QTreeWidgetItem *item = m_items.value(property);
    if (!item)
        return;
    forget(item);
    delete item;
}

QtVariantEditorFactory *QtTreePropertyBrowser::factoryFor(const QtProperty *property) const
{
    return m_factories.value(property->propertyManager());
}

void QtTreePropertyBrowser::showMessage(const QString &message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
    if (!message.isEmpty()) {
        QAccessibleEvent alert(m_message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}
