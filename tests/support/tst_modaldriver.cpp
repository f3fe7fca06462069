// SPDX-License-Identifier: Apache-2.0
#include "support/modaldriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QDialog>

class tst_ModalDriver : public QObject
{
    Q_OBJECT

private slots:
    void stepsMeetTheWindowsInTurn();
    void aStepMayOpenAnotherWindow();
    void anUnmetStepLeavesTheDriverUnfinished();
};

void tst_ModalDriver::stepsMeetTheWindowsInTurn()
{
    ShownMessage first, second;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &first),
                        ModalDriver::pressInMessageBox(QMessageBox::No, &second)});
    QCOMPARE(QMessageBox::warning(nullptr, "one", "first", QMessageBox::Ok), QMessageBox::Ok);
    QCOMPARE(QMessageBox::question(nullptr, "two", "second"), QMessageBox::No);
    QVERIFY(driver.finished());
    QCOMPARE(first.text, QString("first"));
    QCOMPARE(second.title, QString("two"));
}

void tst_ModalDriver::aStepMayOpenAnotherWindow()
{
    ShownMessage inner;
    QDialog outer;
    ModalDriver driver({[](QWidget *dialog) {
                            QMessageBox::warning(dialog, "inner", "from a step");
                            static_cast<QDialog *>(dialog)->accept();
                        },
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &inner)});
    QCOMPARE(outer.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(inner.parent, &outer);
}

void tst_ModalDriver::anUnmetStepLeavesTheDriverUnfinished()
{
    ModalDriver driver({[](QWidget *) {}});
    QCoreApplication::processEvents();
    QVERIFY(!driver.finished());
}

QTEST_MAIN(tst_ModalDriver)
#include "tst_modaldriver.moc"
