// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"

#include <QtCore/QString>
#include <QtGui/QValidator>

class QLineEdit;

/// Which numbers a line may hold.
struct PROPERTYBROWSER_EXPORT NumberRange
{
    enum Kind {
        Whole,  ///< from smallest to largest
        Single, ///< what a float holds, to the nearest
        Double
    };

    Kind kind = Double;
    qlonglong smallest = 0;
    qulonglong largest = 0;

    static NumberRange whole(qlonglong smallest, qulonglong largest);
    static NumberRange fraction(Kind kind);

    /// One sentence on what is wrong with a text that is not empty, empty when it is such a number.
    /// Numbers are written with a decimal point; "nan", "inf" and "-inf" are fractions too.
    QString fault(const QString &text) const;

    /// The number of such a text in digits that read back as it. Digits beyond the largest float
    /// that still mean this float are written as this float.
    QString readable(const QString &text) const;
};

/// Stands around a line while a number is typed into it, and only then: a text that a program gives
/// the line is neither looked at nor changed.
///
/// The decimal mark of the locale is taken as a point. What no number can begin with is refused,
/// and a tool tip beside the line says what is expected. When something was refused in the middle,
/// what is left in the line is another number than was meant ("95,5" would be 955): confirmed()
/// takes it only when asked a second time. GUI thread.
class PROPERTYBROWSER_EXPORT NumberGuard : public QValidator
{
    Q_OBJECT

public:
    enum Refusal {
        Dropped, ///< what does not fit does not get into the line
        Told     ///< it does, and stays until the operator takes it out again
    };

    /// Becomes a child of the line and, where characters are dropped, its validator.
    NumberGuard(const NumberRange &range, QLineEdit *line, Refusal refusal = Dropped);

    /// The guard of a line; null when it has none.
    static NumberGuard *of(const QWidget *line);

    const NumberRange &range() const { return m_range; }

    /// One sentence on why the line's text cannot be taken as it stands, empty when it can be. An
    /// empty line has no fault.
    QString fault() const;

    /// The same, but nothing is said a second time about a number that was only doubtful.
    QString faultAtEnd();

    /// faultAtEnd() with its sentence shown beside the line: whether the editing may end.
    bool confirmed();

    /// Show a sentence beside the line.
    void tell(const QString &sentence) const;

    State validate(QString &input, int &position) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const QString &text);
    void doubt();

    NumberRange m_range;
    QLineEdit *m_line;
    Refusal m_refusal;
    bool m_doubtful = false;
    bool m_pointTyped = false;
    int m_length = 0;
};
