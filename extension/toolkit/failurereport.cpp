// SPDX-License-Identifier: Apache-2.0
#include "failurereport.h"

#include "modallife.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QScreen>
#include <QtGui/QTextLayout>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

// In lines of the box's own font and width.
constexpr int longestAsItIs = 12;
constexpr int linesShownFirst = 4;
constexpr int linesOfDetails = 10;
constexpr int widthInLetters = 64;

/// A text as lines of a width.
struct WrappedText
{
    QStringList first; ///< the first `linesShownFirst`
    int count = 0;
};

WrappedText wrapped(const QString &text, const QFont &font, int width)
{
    WrappedText result;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QVector<QStringRef> paragraphs = text.splitRef(QLatin1Char('\n'));
    for (const QStringRef &paragraph : paragraphs) {
        const QString words = paragraph.toString();
        QTextLayout layout(words, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            if (result.first.size() < linesShownFirst)
                result.first << words.mid(line.textStart(), line.textLength()).trimmed();
            ++result.count;
        }
        layout.endLayout();
    }
    return result;
}

/// The nearest window on the screen that a box of `parent` belongs over.
QWidget *windowBelow(const QWidget *parent)
{
    for (; parent; parent = parent->parentWidget()) {
        if (QWidget *const window = parent->window(); window->isVisible())
            return window;
    }
    return QApplication::activeWindow();
}

class Box : public QMessageBox
{
    Q_DECLARE_TR_FUNCTIONS(FailureReport)

public:
    Box(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok)
        : QMessageBox(icon, title, text, buttons, parent)
    {
        // What a device or a file says must not be taken for markup.
        setTextFormat(Qt::PlainText);
        if (!parent || !parent->window()->isVisible())
            m_below = windowBelow(parent);
    }

    /// Of a text that would fill the screen show the beginning and a list with the whole of it.
    void shorten()
    {
        const int width = fontMetrics().averageCharWidth() * widthInLetters;
        const WrappedText lines = wrapped(text(), font(), width);
        auto *const grid = qobject_cast<QGridLayout *>(layout());
        QLabel *whole = nullptr;
        const auto labels = findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == text())
                whole = label;
        }
        const int place = grid && whole ? grid->indexOf(whole) : -1;
        if (lines.count <= longestAsItIs || place < 0)
            return;

        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(place, &row, &column, &rowSpan, &columnSpan);
        // Kept for those who ask the box for its text.
        whole->hide();

        auto *const beginning =
            new QLabel(lines.first.join(QLatin1Char('\n')) + QStringLiteral(" …"));
        beginning->setObjectName(QStringLiteral("beginning"));
        beginning->setTextFormat(Qt::PlainText);
        auto *const count = new QLabel(tr("The whole text, %1 lines:").arg(lines.count));
        count->setObjectName(QStringLiteral("count"));
        auto *const details = new QPlainTextEdit(text());
        details->setObjectName(QStringLiteral("details"));
        details->setReadOnly(true);
        details->setTabChangesFocus(true);
        details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        details->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        details->setMinimumWidth(width);
        const int border =
            2 * (details->frameWidth() + int(std::ceil(details->document()->documentMargin())));
        details->setFixedHeight(fontMetrics().lineSpacing() * linesOfDetails + border);
        count->setBuddy(details);

        auto *const content = new QWidget;
        auto *const rows = new QVBoxLayout(content);
        rows->setContentsMargins({});
        rows->addWidget(beginning);
        rows->addWidget(count);
        rows->addWidget(details);
        grid->addWidget(content, row + 1, column);
    }

    void setProblem(const QString &problem)
    {
        setInformativeText(problem);
        const auto labels = findChildren<QLabel *>();
        for (QLabel *label : labels)
            label->setTextFormat(Qt::PlainText);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        if (!m_below)
            return;
        if (QWindow *const window = windowHandle())
            window->setTransientParent(m_below->windowHandle());
        QRect place = frameGeometry();
        place.moveCenter(m_below->frameGeometry().center());
        const QRect room = m_below->screen()->availableGeometry();
        place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width())));
        place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() - place.height())));
        move(place.topLeft());
    }

private:
    QPointer<QWidget> m_below; ///< where the parent is not on the screen
};

int run(Box &box, QWidget *opener)
{
    ModalLife life(&box, opener);
    box.shorten();
    return life.exec();
}

} // namespace

bool reportFailure(QWidget *parent, OperationResult result, const QString &error,
                   const FailureTexts &texts)
{
    if (result == OperationSucceeded)
        return false;
    showWarning(parent, texts.title,
                result == OperationDriverUnreachable ? texts.cannotConnect : error);
    return true;
}

void showWarning(QWidget *parent, const QString &title, const QString &text)
{
    Box box(QMessageBox::Warning, parent, title, text);
    run(box, parent);
}

void showInformation(QWidget *parent, const QString &title, const QString &text,
                     const QString &problem)
{
    Box box(problem.isEmpty() ? QMessageBox::Information : QMessageBox::Warning, parent, title,
            text);
    if (!problem.isEmpty())
        box.setProblem(problem);
    run(box, parent);
}

void showFreeInformation(QWidget *opener, const QString &title, const QString &text)
{
    Box box(QMessageBox::Information, nullptr, title, text);
    run(box, opener);
}

bool askWarning(QWidget *parent, const QString &title, const QString &text)
{
    Box box(QMessageBox::Warning, parent, title, text, QMessageBox::Yes | QMessageBox::No);
    return run(box, parent) == QMessageBox::Yes;
}
