// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;
class QtProperty;
class QtVariantPropertyManager;

/// Makes the widgets in which the properties of a QtVariantPropertyManager are edited.
///
/// Text fields for numbers, texts and characters, a check box for bool, date and time fields for
/// the rest. A field takes only what its type can hold and keeps every digit of it. GUI thread
/// only.
class PROPERTYBROWSER_EXPORT QtVariantEditorFactory : public QObject
{
    Q_OBJECT

public:
    explicit QtVariantEditorFactory(QObject *parent = nullptr);
    ~QtVariantEditorFactory() override;

    /// A new editor that shows the property's value; the caller's `parent` owns it. Null when the
    /// property has no editor.
    virtual QWidget *createEditor(QtVariantPropertyManager *manager, QtProperty *property,
                                  QWidget *parent);

    /// Whether the editor holds a value. When it does not, `sentence` says what is expected.
    virtual bool holdsValue(const QWidget *editor, QString *sentence) const;

    /// Give the property what the editor holds. An editor that nobody has touched, or that holds no
    /// value, changes nothing.
    virtual void commit(const QWidget *editor, QtVariantPropertyManager *manager,
                        QtProperty *property) const;
};
