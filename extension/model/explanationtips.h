// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <devicemodel/enumtype.h>

#include <functional>

class QAbstractItemView;
class QModelIndex;
class SclExplanations;

/// A data object in its place: what a tip must know of it.
struct DataObjectPlace
{
    QString lnClass;
    QString name;
    QString type; ///< common data class
};

/// An attribute, array or sub data object in its place. What is not known stays empty.
struct AttributePlace
{
    DataObjectPlace dataObject;
    QStringList path; ///< names from the data object down, its own last
    QString type;
    QString constraint;
    QString enumeration;
};

// The texts of tips, as rich text: the name with its explanation, then data type, presence and, of
// an enumeration, the values. Empty when nothing is known.

QString logicalNodeTip(const SclExplanations &explanations, const QString &lnClass);

QString dataObjectTip(const SclExplanations &explanations, const DataObjectPlace &place);

/// Values are the device's, or else those of the templates.
QString attributeTip(const SclExplanations &explanations, const AttributePlace &place,
                     const QMap<QString, EnumType> &deviceEnumerations);

/// The locale name of the language that the windows' own texts are in; empty when they are English.
QString windowLanguage();

/// Shows a tip beside the item under the pointer. A view's model need not know of tips; items
/// without a text are left to the view. Owned by the view.
class ExplanationTips : public QObject
{
    Q_OBJECT

public:
    using Text = std::function<QString(const QModelIndex &index)>;

    /// `text` is called whenever a tip is due; what it uses must live as long as the view shows
    /// items.
    ExplanationTips(QAbstractItemView *view, Text text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemView *m_view;
    const Text m_text;
};
