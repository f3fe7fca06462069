// SPDX-License-Identifier: Apache-2.0
#include "propertyeditors.h"

#include "numberguard.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QValidator>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

/// Numbers between these are shown without an exponent.
constexpr double smallestPlain = 1e-5;
constexpr double largestPlain = 1e15;

QString translated(const char *text)
{
    return QCoreApplication::translate("PropertyEditor", text);
}

class CharacterValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &) const override
    {
        const bool character = input.size() == 1 && !input.at(0).isSurrogate();
        return input.isEmpty() || character ? Acceptable : Invalid;
    }
};

class TextEditor : public QLineEdit, public PropertyEditor
{
public:
    TextEditor(const QString &text, QWidget *parent)
        : QLineEdit(text, parent)
        , m_shownAtFirst(QLineEdit::text())
    {
        setFrame(false);
    }

    bool isModified() const override { return text() != m_shownAtFirst; }
    QVariant value() const override { return text(); }

private:
    QString m_shownAtFirst;
};

NumberRange rangeOf(int type, bool single)
{
    switch (type) {
    case QMetaType::Int:
        return NumberRange::whole(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    case QMetaType::UInt:
        return NumberRange::whole(0, std::numeric_limits<uint>::max());
    case QMetaType::LongLong:
        return NumberRange::whole(std::numeric_limits<qlonglong>::min(),
                                  std::numeric_limits<qlonglong>::max());
    case QMetaType::ULongLong:
        return NumberRange::whole(0, std::numeric_limits<qulonglong>::max());
    default:
        return NumberRange::fraction(single ? NumberRange::Single : NumberRange::Double);
    }
}

/// The guard lets through whatever can still become a number: the widget library would drop an
/// unfinished text without a word, whereas the delegate asks for the value and says what is
/// missing.
///
/// Integers are read as text, since the validators and spin boxes of the widget library end at 32
/// bits.
class NumberEditor : public TextEditor
{
public:
    NumberEditor(int type, bool single, const QString &text, QWidget *parent)
        : TextEditor(text, parent)
        , m_type(type)
        , m_guard(new NumberGuard(rangeOf(type, single), this))
    {
    }

    QVariant value() const override
    {
        if (!expectation().isEmpty())
            return {};
        QVariant number = m_guard->range().readable(text());
        number.convert(m_type);
        return number;
    }
    QString expectation() const override
    {
        return text().isEmpty() ? m_guard->range().fault({}) : m_guard->fault();
    }
    void acknowledge() override { m_guard->faultAtEnd(); }

private:
    int m_type;
    NumberGuard *m_guard;
};

class CharacterEditor : public TextEditor
{
public:
    CharacterEditor(const QString &text, QWidget *parent)
        : TextEditor(text, parent)
    {
        setValidator(new CharacterValidator(this));
        connect(this, &QLineEdit::inputRejected, this, [this] {
            QToolTip::showText(mapToGlobal(QPoint(0, height())), expectation(), this);
        });
    }

    QVariant value() const override { return text().isEmpty() ? QVariant() : text().at(0); }
    QString expectation() const override
    {
        return translated(QT_TRANSLATE_NOOP("PropertyEditor", "One character is needed."));
    }
};

class TruthEditor : public QCheckBox, public PropertyEditor
{
public:
    TruthEditor(bool truth, QWidget *parent)
        : QCheckBox(truthText(truth), parent)
        , m_shownAtFirst(truth)
    {
        setChecked(truth);
        setAutoFillBackground(true);
        connect(this, &QCheckBox::toggled, this, [this](bool on) { setText(truthText(on)); });
    }

    bool isModified() const override { return isChecked() != m_shownAtFirst; }
    QVariant value() const override { return isChecked(); }

private:
    bool m_shownAtFirst;
};

/// Shows date and time in UTC whatever the value's own zone, so that no wall-clock time is shifted
/// or refused because of a change of summer time; the value keeps its zone.
class MomentEditor : public QDateTimeEdit, public PropertyEditor
{
public:
    MomentEditor(int type, const QVariant &value, QWidget *parent)
        : QDateTimeEdit(parent)
        , m_type(type)
        , m_original(value)
    {
        setFrame(false);
        setAutoFillBackground(true);
        setTimeSpec(Qt::UTC);
        setDateTimeRange(QDateTime(QDate(100, 1, 1), QTime(0, 0), Qt::UTC),
                         QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999), Qt::UTC));
        setDisplayFormat(type == QMetaType::QDate   ? QStringLiteral("yyyy-MM-dd")
                         : type == QMetaType::QTime ? QStringLiteral("HH:mm:ss.zzz")
                                                    : QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
        setCalendarPopup(type == QMetaType::QDate);
        const QDate date = value.toDate().isValid() ? value.toDate() : QDate(1970, 1, 1);
        const QTime time = value.toTime().isValid() ? value.toTime() : QTime(0, 0);
        setDateTime(QDateTime(date, time, Qt::UTC));
        m_shownAtFirst = dateTime();
    }

    bool isModified() const override { return dateTime() != m_shownAtFirst; }
    QVariant value() const override
    {
        if (m_type == QMetaType::QDate)
            return date();
        if (m_type == QMetaType::QTime)
            return time();
        QDateTime moment = m_original.toDateTime();
        if (!moment.isValid())
            moment = QDateTime(date(), time(), Qt::UTC);
        moment.setDate(date());
        moment.setTime(time());
        return moment;
    }

private:
    int m_type;
    QVariant m_original;
    QDateTime m_shownAtFirst;
};

} // namespace

QString truthText(bool truth)
{
    return truth ? translated(QT_TRANSLATE_NOOP("PropertyEditor", "True"))
                 : translated(QT_TRANSLATE_NOOP("PropertyEditor", "False"));
}

QString numberText(double number, bool single)
{
    const double size = std::abs(number);
    const bool plain = size == 0 || (size >= smallestPlain && size < largestPlain);
    if (single && size <= double(std::numeric_limits<float>::max())) {
        const float rounded = static_cast<float>(number);
        if (static_cast<double>(rounded) == number) {
            std::array<char, 64> text;
            const auto end =
                std::to_chars(text.data(), text.data() + text.size(), rounded,
                              plain ? std::chars_format::fixed : std::chars_format::scientific);
            return QString::fromLatin1(text.data(), static_cast<int>(end.ptr - text.data()));
        }
    }
    return QString::number(number, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

PropertyEditor::~PropertyEditor() = default;

QString PropertyEditor::expectation() const
{
    return QString();
}

void PropertyEditor::acknowledge() {}

QWidget *createPropertyEditor(int type, const QVariant &value, const QString &valueText,
                              bool single, QWidget *parent)
{
    switch (type) {
    case QMetaType::Bool:
        return new TruthEditor(value.toBool(), parent);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return new NumberEditor(type, single, valueText, parent);
    case QMetaType::QString:
        return new TextEditor(valueText, parent);
    case QMetaType::QChar:
        return new CharacterEditor(valueText, parent);
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
        return new MomentEditor(type, value, parent);
    default:
        return nullptr;
    }
}
