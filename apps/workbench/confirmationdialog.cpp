// SPDX-License-Identifier: Apache-2.0
#include "confirmationdialog.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int narrowest = 420;

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel(text);
    // Names come from devices.
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ConfirmationDialog::ConfirmationDialog(const CallConfirmation::Question &question, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("ConfirmationDialog"));
    setWindowTitle(tr("Confirm"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    auto *rows = new QGridLayout;
    rows->setColumnStretch(1, 1);
    QLabel *heading = plainLabel(question.operation);
    heading->setObjectName(QStringLiteral("operation"));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    rows->addWidget(heading, 0, 0, 1, 2);
    for (int row = 0; row < question.rows.size(); ++row) {
        QLabel *text = plainLabel(question.rows[row].second);
        text->setWordWrap(true);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        rows->addWidget(plainLabel(question.rows[row].first), row + 1, 0,
                        Qt::AlignLeft | Qt::AlignTop);
        rows->addWidget(text, row + 1, 1);
    }

    auto *icon = new QLabel;
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxWarning)
                        .pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));
    auto *top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(rows, 1);

    auto *buttons = new QDialogButtonBox;
    m_cancel = buttons->addButton(QDialogButtonBox::Cancel);
    m_send = buttons->addButton(tr("&Send to the device"), QDialogButtonBox::AcceptRole);
    m_send->setObjectName(QStringLiteral("send"));
    m_send->setAutoDefault(false);
    for (QPushButton *button : {m_send, m_cancel})
        button->setEnabled(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addStretch();
    layout->addWidget(buttons);
    m_cancel->setDefault(true);
    setMinimumWidth(narrowest);
    if (parent)
        parent->installEventFilter(this);
}

bool ConfirmationDialog::asks(const CallConfirmation::Question &question, QWidget *parent)
{
    // Not on the stack: the parent destroys it when it is destroyed itself.
    const QPointer<ConfirmationDialog> dialog(new ConfirmationDialog(question, parent));
    const bool isConfirmed = dialog->exec() == QDialog::Accepted;
    delete dialog;
    return isConfirmed;
}

bool ConfirmationDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Hide && !event->spontaneous())
        reject();
    return QDialog::eventFilter(watched, event);
}

void ConfirmationDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QTimer::singleShot(armedAfterMs, this, [this] {
        m_isArmed = true;
        m_send->setEnabled(true);
        m_cancel->setEnabled(true);
        m_cancel->setFocus();
        emit armed();
    });
}

void ConfirmationDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && (!m_isArmed || event->isAutoRepeat()))
        return;
    QDialog::keyPressEvent(event);
}
