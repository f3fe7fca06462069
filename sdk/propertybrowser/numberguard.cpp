// SPDX-License-Identifier: Apache-2.0
#include "numberguard.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <cmath>
#include <limits>

namespace {

constexpr double largestSingle = std::numeric_limits<float>::max();
/// From here on numbers are nearer to the next power of two than to the largest float.
constexpr double beyondSingle = 0x1.ffffffp127;
/// Up to here numbers are nearer to 0 than to the smallest float.
constexpr double nothingInSingle = 0x1p-150;

QString translated(const char *text)
{
    return QCoreApplication::translate("PropertyEditor", text);
}

QString wholeNeeded(const NumberRange &range)
{
    return translated(
               QT_TRANSLATE_NOOP("PropertyEditor", "A whole number from %1 to %2 is needed."))
        .arg(range.smallest)
        .arg(range.largest);
}

QString fractionNeeded()
{
    return translated(QT_TRANSLATE_NOOP(
        "PropertyEditor", "A number with a decimal point is needed, such as 0.25 or 1e-3."));
}

bool isWholeInRange(const QString &text, const NumberRange &range)
{
    static const QRegularExpression pattern(QStringLiteral("^[+-]?[0-9]+$"));
    if (!pattern.match(text).hasMatch())
        return false;
    bool ok = false;
    if (text.startsWith(QLatin1Char('-')))
        return text.toLongLong(&ok) >= range.smallest && ok;
    const QString digits = text.startsWith(QLatin1Char('+')) ? text.mid(1) : text;
    return digits.toULongLong(&ok) <= range.largest && ok;
}

bool canBecomeWhole(const QString &text, const NumberRange &range)
{
    static const QRegularExpression pattern(QStringLiteral("^[+-]?[0-9]*$"));
    if (!pattern.match(text).hasMatch())
        return false;
    if (range.smallest >= 0 && text.startsWith(QLatin1Char('-')))
        return false;
    const bool begun = text.isEmpty() || !text.back().isDigit();
    return begun || isWholeInRange(text, range);
}

bool canBecomeFraction(const QString &text)
{
    static const QRegularExpression number(
        QStringLiteral("^[+-]?[0-9]*([.][0-9]*)?([eE][+-]?[0-9]*)?$"));
    static const QRegularExpression word(QStringLiteral("^[+-]?(i|in|inf|n|na|nan)$"));
    return number.match(text).hasMatch() || word.match(text).hasMatch();
}

bool canBecomeNumber(const QString &text, const NumberRange &range)
{
    return range.kind == NumberRange::Whole ? canBecomeWhole(text, range) : canBecomeFraction(text);
}

/// In some countries "1.234" is a number of four digits.
bool looksGrouped(const QString &text)
{
    static const QRegularExpression grouped(QStringLiteral("^[+-]?[0-9]{1,3}[.][0-9]{3}$"));
    return QLocale().groupSeparator() == QLatin1Char('.') && grouped.match(text).hasMatch();
}

} // namespace

NumberRange NumberRange::whole(qlonglong smallest, qulonglong largest)
{
    return {Whole, smallest, largest};
}

NumberRange NumberRange::fraction(Kind kind)
{
    return {kind, 0, 0};
}

QString NumberRange::fault(const QString &text) const
{
    if (kind == Whole)
        return isWholeInRange(text, *this) ? QString() : wholeNeeded(*this);
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !canBecomeFraction(text))
        return fractionNeeded();
    if (kind == Double || !std::isfinite(number))
        return {};
    if (std::abs(number) >= beyondSingle) {
        return translated(QT_TRANSLATE_NOOP("PropertyEditor",
                                            "The number is too large: the data type ends at %1."))
            .arg(QStringLiteral("3.4028235e38"));
    }
    if (number != 0 && std::abs(number) <= nothingInSingle) {
        return translated(QT_TRANSLATE_NOOP(
            "PropertyEditor", "The number is too small: in this data type it would become 0."));
    }
    return {};
}

QString NumberRange::readable(const QString &text) const
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    const double size = std::abs(number);
    if (kind != Single || !ok || size <= largestSingle || size >= beyondSingle)
        return text;
    return QString::number(std::copysign(largestSingle, number), 'g', 17);
}

NumberGuard::NumberGuard(const NumberRange &range, QLineEdit *line, Refusal refusal)
    : QValidator(line)
    , m_range(range)
    , m_line(line)
    , m_refusal(refusal)
{
    line->installEventFilter(this);
    connect(line, &QLineEdit::textEdited, this, &NumberGuard::take);
    if (refusal == Dropped) {
        line->setValidator(this);
        connect(line, &QLineEdit::inputRejected, this, &NumberGuard::doubt);
    }
}

NumberGuard *NumberGuard::of(const QWidget *line)
{
    return line ? line->findChild<NumberGuard *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

QString NumberGuard::fault() const
{
    const QString text = m_line->text();
    if (text.isEmpty())
        return {};
    const QString fault = m_range.fault(text);
    if (!fault.isEmpty())
        return fault;
    if (m_doubtful) {
        return translated(QT_TRANSLATE_NOOP("PropertyEditor",
                                            "Not all that was typed was taken. Press Enter again "
                                            "if %1 is meant."))
            .arg(text);
    }
    if (m_range.kind != NumberRange::Whole && m_pointTyped && looksGrouped(text)) {
        return translated(QT_TRANSLATE_NOOP("PropertyEditor",
                                            "The point in %1 is read as the decimal point. Press "
                                            "Enter again if this is meant."))
            .arg(text);
    }
    return {};
}

QString NumberGuard::faultAtEnd()
{
    const QString sentence = fault();
    m_doubtful = false;
    m_pointTyped = false;
    return sentence;
}

bool NumberGuard::confirmed()
{
    const QString sentence = faultAtEnd();
    if (sentence.isEmpty())
        return true;
    tell(sentence);
    return false;
}

void NumberGuard::tell(const QString &sentence) const
{
    QToolTip::showText(m_line->mapToGlobal(QPoint(0, m_line->height())), sentence, m_line);
}

QValidator::State NumberGuard::validate(QString &input, int &position) const
{
    const QString trimmed = input.trimmed();
    if (trimmed.size() != input.size()) {
        input = trimmed;
        position = qMin(position, input.size());
    }
    // Whatever can still become a number: who ends the editing asks for more.
    return canBecomeNumber(input, m_range) ? Acceptable : Invalid;
}

bool NumberGuard::eventFilter(QObject *watched, QEvent *event)
{
    const QChar mark = QLocale().decimalPoint();
    const bool takesMark = m_range.kind != NumberRange::Whole && mark != QLatin1Char('.');
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Paste)) {
            QString text = QGuiApplication::clipboard()->text().trimmed();
            // A point beside a mark groups digits.
            if (takesMark && !text.contains(QLatin1Char('.')))
                text.replace(mark, QLatin1Char('.'));
            m_line->insert(text);
            return true;
        }
        if (takesMark && key->text() == mark) {
            m_line->insert(QStringLiteral("."));
            return true;
        }
        if (key->text() == QLatin1String(".")) {
            m_pointTyped = true;
        } else if (key->text() == QLatin1String(" ") && m_refusal == Dropped) {
            // Blanks around a pasted number are nothing to speak of, one that is typed may part it.
            doubt();
            return true;
        }
    } else if (event->type() == QEvent::InputMethod && takesMark) {
        const auto *input = static_cast<QInputMethodEvent *>(event);
        if (input->commitString() == mark) {
            m_line->insert(QStringLiteral("."));
            return true;
        }
    }
    return QValidator::eventFilter(watched, event);
}

void NumberGuard::take(const QString &text)
{
    // Whoever takes something out has seen what stands there.
    if (text.size() < m_length) {
        m_doubtful = false;
        m_pointTyped = false;
    }
    m_length = text.size();
    if (m_refusal == Told && !canBecomeNumber(text, m_range))
        tell(m_range.fault(text));
}

void NumberGuard::doubt()
{
    m_doubtful = true;
    tell(m_range.kind == NumberRange::Whole ? wholeNeeded(m_range) : fractionNeeded());
}
