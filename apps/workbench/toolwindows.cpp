// SPDX-License-Identifier: Apache-2.0
#include "toolwindows.h"

#include "confirmationdialog.h"
#include "devicedialog.h"
#include "iedchooser.h"
#include "tracedialog.h"

#include <QtCore/QEvent>
#include <QtCore/QVariant>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <utility>

namespace {

constexpr char deviceProperty[] = "deviceOfToolWindow";

/// Whether the window is a tool's own, which shows or changes what is on a device; the workbench
/// may have something to ask while a tool runs.
bool isTool(const QDialog *window)
{
    return !qobject_cast<const QMessageBox *>(window) &&
           !qobject_cast<const QFileDialog *>(window) &&
           !qobject_cast<const ConfirmationDialog *>(window) &&
           !qobject_cast<const DeviceDialog *>(window) &&
           !qobject_cast<const IedChooser *>(window) &&
           !qobject_cast<const TraceDialog *>(window) &&
           window->objectName() != QLatin1String("WaitingDialog");
}

/// The device of a window below.
QString inherited(const QWidget *window)
{
    for (const QWidget *each = window; each; each = each->parentWidget()) {
        const QString device = each->property(deviceProperty).toString();
        if (!device.isEmpty())
            return device;
    }
    return {};
}

} // namespace

ToolWindows::ToolWindows(QObject *parent)
    : QObject(parent)
{
    QApplication::instance()->installEventFilter(this);
}

void ToolWindows::run(const QString &device, const std::function<void()> &tool)
{
    const QString before = std::exchange(m_device, device);
    tool();
    m_device = before;
}

bool ToolWindows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        auto *const window = qobject_cast<QDialog *>(watched);
        if (window && window->isWindow() && isTool(window) &&
            window->property(deviceProperty).toString().isEmpty()) {
            const QString below = inherited(window->parentWidget());
            const QString device = below.isEmpty() ? m_device : below;
            if (!device.isEmpty()) {
                window->setProperty(deviceProperty, device);
                window->setWindowTitle(tr("%1 \u2013 %2").arg(window->windowTitle(), device));
            }
        }
    }
    return QObject::eventFilter(watched, event);
}
