// SPDX-License-Identifier: Apache-2.0
#include "workbench/iedchooser.h"
#include "workbench/toolwindows.h"

#include <QtTest/QtTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>

#include <memory>

class tst_ToolWindows : public QObject
{
    Q_OBJECT

private slots:
    void theWindowsOfAToolBearItsDevice();
    void whatOpensAboveAToolBearsItsDeviceToo();
    void messageBoxesKeepTheirTitles();
    void windowsOfTheHostKeepTheirTitles();

private:
    static std::unique_ptr<QDialog> make(QWidget *parent = nullptr)
    {
        auto dialog = std::make_unique<QDialog>(parent);
        dialog->setWindowTitle(QStringLiteral("Tool"));
        return dialog;
    }

    ToolWindows m_windows;
};

void tst_ToolWindows::theWindowsOfAToolBearItsDevice()
{
    const auto first = make();
    m_windows.run(QStringLiteral("BAY1"), [&] { first->show(); });
    QCOMPARE(first->windowTitle(), QString::fromUtf8("Tool \u2013 BAY1"));
    const auto second = make();
    m_windows.run(QStringLiteral("BAY2"), [&] { second->show(); });
    QCOMPARE(second->windowTitle(), QString::fromUtf8("Tool \u2013 BAY2"));
    // Once is enough.
    first->hide();
    m_windows.run(QStringLiteral("BAY2"), [&] { first->show(); });
    QCOMPARE(first->windowTitle(), QString::fromUtf8("Tool \u2013 BAY1"));
}

void tst_ToolWindows::whatOpensAboveAToolBearsItsDeviceToo()
{
    const auto tool = make();
    m_windows.run(QStringLiteral("BAY1"), [&] { tool->show(); });
    const auto above = make(tool.get());
    m_windows.run(QStringLiteral("BAY2"), [&] { above->show(); });
    QCOMPARE(above->windowTitle(), QString::fromUtf8("Tool \u2013 BAY1"));
}

void tst_ToolWindows::messageBoxesKeepTheirTitles()
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Fail"), QStringLiteral("No."));
    m_windows.run(QStringLiteral("BAY1"), [&] { box.show(); });
    QCOMPARE(box.windowTitle(), QStringLiteral("Fail"));
}

void tst_ToolWindows::windowsOfTheHostKeepTheirTitles()
{
    const auto dialog = make();
    dialog->show();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Tool"));
    // A file that was opened before may ask while a tool runs.
    IedChooser chooser(QStringLiteral("several.scd"), {});
    const QString title = chooser.windowTitle();
    m_windows.run(QStringLiteral("BAY1"), [&] { chooser.show(); });
    QCOMPARE(chooser.windowTitle(), title);
}

QTEST_MAIN(tst_ToolWindows)
#include "tst_toolwindows.moc"
