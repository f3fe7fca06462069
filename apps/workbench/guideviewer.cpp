// SPDX-License-Identifier: Apache-2.0
#include "guideviewer.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace {

const QUrl firstPage(QStringLiteral("qrc:/guide/operator-guide.md"));

/// The name by which links within Markdown call a heading.
QString anchorOf(const QString &heading)
{
    static const QRegularExpression left(QStringLiteral("[^\\w\\- ]"));
    return heading.toLower().remove(left).replace(QLatin1Char(' '), QLatin1Char('-'));
}

QTextCursor headingNamed(const QString &anchor, QTextDocument *document)
{
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == anchor)
            return QTextCursor(block);
    }
    return {};
}

} // namespace

GuideViewer::GuideViewer(QWidget *parent)
    : QDialog(parent)
    , m_browser(new QTextBrowser(this))
    , m_pattern(new QLineEdit(this))
{
    setWindowTitle(tr("Operator Guide"));
    setObjectName(QStringLiteral("GuideViewer"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(920, 720);

    auto *back = new QToolButton(this);
    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    back->setToolTip(tr("Back"));
    back->setShortcut(QKeySequence::Back);
    back->setEnabled(false);
    m_pattern->setPlaceholderText(tr("Find in the guide"));
    auto *line = new QHBoxLayout;
    line->addWidget(back);
    line->addWidget(m_pattern);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addWidget(m_browser);

    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &GuideViewer::open);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_pattern, &QLineEdit::returnPressed, this, &GuideViewer::find);
    m_browser->setSource(firstPage);
}

void GuideViewer::open(const QUrl &url)
{
    const QUrl target = m_browser->source().resolved(url);
    const QUrl page = target.adjusted(QUrl::RemoveFragment);
    if (page != m_browser->source().adjusted(QUrl::RemoveFragment))
        m_browser->setSource(page);
    const QTextCursor heading = headingNamed(target.fragment(), m_browser->document());
    if (heading.isNull())
        return;
    // From the end upwards, so that the heading comes to the top of the view.
    m_browser->moveCursor(QTextCursor::End);
    m_browser->setTextCursor(heading);
    QScrollBar *bar = m_browser->verticalScrollBar();
    bar->setValue(bar->value() + m_browser->cursorRect().top());
}

void GuideViewer::find()
{
    if (m_browser->find(m_pattern->text()))
        return;
    m_browser->moveCursor(QTextCursor::Start);
    m_browser->find(m_pattern->text());
}
