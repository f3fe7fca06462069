// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QWidget;

/// "True" or "False", translated.
QString truthText(bool truth);

/// The shortest text that reads back as exactly this number; with `single`, as exactly this float
/// when the number is one.
QString numberText(double number, bool single);

/// What the editors of this library have in common, beside being widgets.
class PropertyEditor
{
public:
    virtual ~PropertyEditor();

    /// Whether the operator has changed anything. What was not touched is not written back, so that
    /// nothing is lost of a value that the editor could only show in part.
    virtual bool isModified() const = 0;
    /// The edited value; an invalid variant when what stands in the editor is none yet.
    virtual QVariant value() const = 0;
    /// One sentence on what the editor takes, for one whose content can be unfinished.
    virtual QString expectation() const;
    /// The operator was told what is expected; what was only doubtful is a value from now on.
    virtual void acknowledge();
};

/// An editor for a value of the given QMetaType; null for a type that has none. The result is a
/// PropertyEditor as well.
/// @param single a double stands for a single-precision number
QWidget *createPropertyEditor(int type, const QVariant &value, const QString &valueText,
                              bool single, QWidget *parent);
