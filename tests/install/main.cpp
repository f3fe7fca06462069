// SPDX-License-Identifier: Apache-2.0
#include "exampledriver.h"

#include <host/driverprotocolextentioninterface.h>
#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>
#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QPluginLoader>
#include <QtCore/QTextStream>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QToolBar>

/// Says where the driver's service is: in this process, under a name of the host's choice.
class ExampleConsole : public DriverConsolInterface
{
public:
    QString currentAddress() override { return QStringLiteral("example"); }
    OperationResult getLoc(long, long, QString &location) override
    {
        location = QStringLiteral("in this program");
        return OperationSucceeded;
    }
};

int main(int argc, char *argv[])
{
    constexpr int iec61850 = 4;
    constexpr int driverNo = 1;
    constexpr int deviceNo = 7;
    QApplication application(argc, argv);
    QTextStream out(stdout);

    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    auto *extension = qobject_cast<DriverProtocolExtentionInterface *>(loader.instance());
    if (!extension || !extension->supportsProtocol(iec61850) || !extension->isAvailable()) {
        out << "The plug-in cannot be used. " << loader.errorString() << '\n';
        return 1;
    }
    extension->initialize();

    ExampleConsole console;
    DriverServiceRegistry::add(console.currentAddress(), std::make_shared<ExampleDriver>());
    QMainWindow window;
    HostTaskContext context{&console, &window};
    extension->setTaskContext(driverNo, deviceNo, 0, &context);

    QToolBar *toolBar = window.addToolBar(QStringLiteral("IEC 61850"));
    const QList<QAction *> actions = extension->actions();
    for (QAction *action : actions) {
        toolBar->addAction(action);
        out << action->text() << '\n';
    }
    window.show();

    int status = 0;
    if (QApplication::arguments().contains(QStringLiteral("--try"))) {
        actions.first()->trigger();
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *opened : windows) {
            if (opened != &window && opened->isVisible())
                out << "opened: " << opened->windowTitle() << '\n';
        }
    } else {
        status = QApplication::exec();
    }
    DriverServiceRegistry::remove(console.currentAddress());
    return status;
}
