// SPDX-License-Identifier: Apache-2.0
#include "workbench/devicelistmodel.h"
#include "workbench/plaintip.h"

#include <QtGui/QTextDocument>
#include <QtTest/QtTest>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

DeviceRecord reached(int number, const QString &name)
{
    DeviceRecord record;
    record.configuration.number = number;
    record.configuration.name = name;
    record.configuration.host = s("192.0.2.1");
    return record;
}

} // namespace

class tst_DeviceListModel : public QObject
{
    Q_OBJECT

private slots:
    void devicesThatAreAwayAreCountedSinceTheFirst();
    void valuesThatAreNotCurrentAreTold();
    void whatADeviceSaysIsNoMarkUpInATip();

private:
    static DeviceStatus statusOf(int number, DeviceState state)
    {
        DeviceStatus status;
        status.number = number;
        status.state = state;
        return status;
    }
};

void tst_DeviceListModel::devicesThatAreAwayAreCountedSinceTheFirst()
{
    DeviceListModel model;
    for (int number = 1; number <= 3; ++number) {
        model.append(reached(number, s("IED%1").arg(number)));
        model.setReady(number, {}, {});
        model.setStatus(statusOf(number, DeviceState::Online));
    }
    QCOMPARE(model.away().names, QStringList());
    QVERIFY(!model.away().since.isValid());

    const QDateTime first(QDate(2026, 3, 4), QTime(5, 6, 7));
    DeviceStatus lost = statusOf(2, DeviceState::Waiting);
    lost.lostSince = first.addSecs(60);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setStatus(lost);
    lost = statusOf(3, DeviceState::Connecting);
    lost.lostSince = first;
    model.setStatus(lost);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(model.away().names, QStringList({s("IED2"), s("IED3")}));
    QCOMPARE(model.away().since, first);
    const QString tip =
        model.index(2, DeviceListModel::StateColumn).data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains(s("Away since ") + QLocale().toString(first, QLocale::ShortFormat)),
             qPrintable(tip));

    // Nobody wants it any more.
    model.setStatus(statusOf(3, DeviceState::Disconnected));
    QCOMPARE(model.away().names, QStringList(s("IED2")));
    model.setStatus(statusOf(2, DeviceState::Online));
    QCOMPARE(model.away().names, QStringList());
}

void tst_DeviceListModel::valuesThatAreNotCurrentAreTold()
{
    DeviceListModel model;
    model.append(reached(1, s("IED1")));
    model.setReady(1, {}, {});
    DeviceStatus status = statusOf(1, DeviceState::Online);
    model.setStatus(status);
    const QModelIndex state = model.index(0, DeviceListModel::StateColumn);
    QCOMPARE(state.data().toString(), s("Connected"));
    status.staleValues = 12;
    status.staleSince = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7));
    model.setStatus(status);
    QCOMPARE(state.data().toString(), s("Connected, values not current: 12"));
    QVERIFY(state.data(Qt::ToolTipRole)
                .toString()
                .contains(s("Values that are not current: 12, the oldest of ")));
    status.staleValues = 0;
    model.setStatus(status);
    QCOMPARE(state.data().toString(), s("Connected"));
}

void tst_DeviceListModel::whatADeviceSaysIsNoMarkUpInATip()
{
    DeviceListModel model;
    model.append(reached(1, s("IED1")));
    model.setReady(1, {}, {});
    DeviceStatus status = statusOf(1, DeviceState::Online);
    status.vendor = s("<b>Best</b><img src=\"x\">");
    model.setStatus(status);
    const QString tip =
        model.index(0, DeviceListModel::IdentityColumn).data(Qt::ToolTipRole).toString();
    QVERIFY(Qt::mightBeRichText(tip));
    QTextDocument shown;
    shown.setHtml(tip);
    QCOMPARE(shown.toPlainText(), s("Vendor: <b>Best</b><img src=\"x\">\nModel: \nRevision: "));
    QCOMPARE(plainTip(s("a & b\nc < d")), s("a & b\nc < d"));
}

QTEST_MAIN(tst_DeviceListModel)
#include "tst_devicelistmodel.moc"
