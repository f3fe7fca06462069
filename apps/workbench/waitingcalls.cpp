// SPDX-License-Identifier: Apache-2.0
#include "waitingcalls.h"

#include <QtCore/QEventLoop>
#include <QtCore/QThread>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <future>
#include <thread>
#include <utility>

namespace {

/// Stays until the call has ended, however an operator tries to get rid of it.
class WaitingDialog : public QDialog
{
public:
    WaitingDialog(const QString &title, const QString &sentence, const QString &cancelling,
                  std::function<void()> cancel, QWidget *parent)
        : QDialog(parent)
        , m_cancel(std::move(cancel))
        , m_sentence(new QLabel(sentence, this))
        , m_cancelling(cancelling)
        , m_buttons(new QDialogButtonBox(QDialogButtonBox::Cancel, this))
    {
        setObjectName(QStringLiteral("WaitingDialog"));
        setWindowTitle(title);
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        setWindowModality(Qt::ApplicationModal);
        constexpr int widestSentence = 420;
        m_sentence->setObjectName(QStringLiteral("sentence"));
        m_sentence->setTextFormat(Qt::PlainText);
        m_sentence->setWordWrap(true);
        m_sentence->setMinimumWidth(widestSentence);
        auto *const bar = new QProgressBar(this);
        bar->setRange(0, 0);
        bar->setTextVisible(false);
        auto *const layout = new QVBoxLayout(this);
        layout->addWidget(m_sentence);
        layout->addWidget(bar);
        layout->addWidget(m_buttons);
        connect(m_buttons, &QDialogButtonBox::rejected, this, &WaitingDialog::reject);
        // An Enter that was meant for the window before must not cancel.
        m_buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
        m_buttons->button(QDialogButtonBox::Cancel)->setFocusPolicy(Qt::TabFocus);
    }

    void reject() override
    {
        if (const auto cancel = std::exchange(m_cancel, {})) {
            m_sentence->setText(m_cancelling);
            m_buttons->setEnabled(false);
            cancel();
        }
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        reject();
        event->ignore();
    }

private:
    std::function<void()> m_cancel;
    QLabel *m_sentence;
    const QString m_cancelling;
    QDialogButtonBox *m_buttons;
};

} // namespace

WaitingCalls::WaitingCalls(std::function<void(long)> cancel, std::chrono::milliseconds patience)
    : m_cancel(std::move(cancel))
    , m_patience(patience)
    , m_deviceName([](long deviceNo) { return QString::number(deviceNo); })
{
}

void WaitingCalls::setDeviceName(std::function<QString(long)> deviceName)
{
    m_deviceName = std::move(deviceName);
}

void WaitingCalls::run(const ControllerCall &call, const std::function<void()> &work)
{
    if (!qApp || QThread::currentThread() != qApp->thread()) {
        work();
        return;
    }
    QEventLoop loop;
    std::promise<void> done;
    std::future<void> isDone = done.get_future();
    // What waits for the thread goes by the future: a loop that does not run yet cannot be quit.
    std::thread thread([&] {
        work();
        done.set_value();
        QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
    });
    if (isDone.wait_for(m_patience) != std::future_status::ready) {
        const QString name = m_deviceName(call.deviceNo);
        // Not on the stack: with the window it goes, however long the call still takes.
        const QPointer<WaitingDialog> dialog(new WaitingDialog(
            tr("Waiting for %1").arg(name),
            tr("%1 has not answered yet (%2).").arg(name, call.operation),
            tr("Cancelling. What the device was asked before may still be done."),
            [this, deviceNo = call.deviceNo] { m_cancel(deviceNo); }, m_window));
        QApplication::setOverrideCursor(Qt::ArrowCursor);
        dialog->show();
        // A program that is about to end runs no loop any more.
        if (isDone.wait_for(std::chrono::seconds(0)) != std::future_status::ready &&
            loop.exec() != 0)
            isDone.wait();
        QApplication::restoreOverrideCursor();
        delete dialog;
    }
    thread.join();
}
