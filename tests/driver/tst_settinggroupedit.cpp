// SPDX-License-Identifier: Apache-2.0
#include "driver/core/settinggroupedit.h"

#include <QtTest/QtTest>

using namespace std::chrono_literals;
using Verdict = SettingGroupEdit::Verdict;

class tst_SettingGroupEdit : public QObject
{
    Q_OBJECT

private slots:
    void theGroupThatAToolHasChosenIsItsOwn();
    void whatOthersEditIsNotGranted();
    void anEditThatTheDeviceHasGivenUpIsTold();
    void theNextChoiceTakesTheEditOver();
    void readingTheActiveSettingsEndsOnesOwnEdit();
    void anEditThatNobodyGoesOnWithIsGivenBack();

private:
    const SettingGroupEdit::Time m_start{1000h};
};

void tst_SettingGroupEdit::theGroupThatAToolHasChosenIsItsOwn()
{
    SettingGroupEdit edit;
    QVERIFY(!edit.isChosen());
    QVERIFY(edit.verdict(1, 0) == Verdict::NothingChosen);
    edit.chosen(1, 3, m_start);
    QVERIFY(edit.isChosen());
    QCOMPARE(edit.group(), 3U);
    QVERIFY(edit.verdict(1, 3) == Verdict::Granted);
    edit.ended();
    QVERIFY(!edit.isChosen());
    QVERIFY(edit.verdict(1, 0) == Verdict::NothingChosen);
}

void tst_SettingGroupEdit::whatOthersEditIsNotGranted()
{
    SettingGroupEdit edit;
    QVERIFY(edit.verdict(1, 3) == Verdict::OtherClient);
    edit.chosen(1, 3, m_start);
    QVERIFY(edit.verdict(2, 3) == Verdict::OtherWindow);
    // The device has gone over to another client.
    QVERIFY(edit.verdict(1, 2) == Verdict::OtherClient);
    QVERIFY(edit.verdict(2, 2) == Verdict::OtherClient);
    edit.ended();
    QVERIFY(edit.verdict(1, 3) == Verdict::OtherClient);
}

void tst_SettingGroupEdit::anEditThatTheDeviceHasGivenUpIsTold()
{
    SettingGroupEdit edit;
    edit.chosen(1, 3, m_start);
    QVERIFY(edit.verdict(1, 0) == Verdict::GivenUp);
    QVERIFY(edit.verdict(2, 0) == Verdict::NothingChosen);
}

void tst_SettingGroupEdit::theNextChoiceTakesTheEditOver()
{
    SettingGroupEdit edit;
    edit.chosen(1, 3, m_start);
    edit.chosen(2, 2, m_start);
    QVERIFY(edit.verdict(1, 2) == Verdict::OtherWindow);
    QVERIFY(edit.verdict(2, 2) == Verdict::Granted);
    // The same group again, for another tool.
    edit.chosen(1, 2, m_start);
    QVERIFY(edit.verdict(2, 2) == Verdict::OtherWindow);
}

void tst_SettingGroupEdit::readingTheActiveSettingsEndsOnesOwnEdit()
{
    SettingGroupEdit edit;
    QVERIFY(!edit.endsByReadingActive(1));
    edit.chosen(1, 3, m_start);
    QVERIFY(edit.endsByReadingActive(1));
    QVERIFY(!edit.endsByReadingActive(2));
    edit.ended();
    QVERIFY(!edit.endsByReadingActive(1));
}

void tst_SettingGroupEdit::anEditThatNobodyGoesOnWithIsGivenBack()
{
    SettingGroupEdit edit;
    QVERIFY(!edit.deadline());
    QVERIFY(!edit.isOverdue(m_start + 100h));
    edit.chosen(1, 3, m_start);
    QVERIFY(edit.deadline() == m_start + SettingGroupEdit::patience);
    QVERIFY(!edit.isOverdue(m_start + SettingGroupEdit::patience - 1ns));
    QVERIFY(edit.isOverdue(m_start + SettingGroupEdit::patience));
    edit.used(m_start + 10min);
    QVERIFY(!edit.isOverdue(m_start + SettingGroupEdit::patience));
    QVERIFY(edit.isOverdue(m_start + SettingGroupEdit::patience + 10min));
    edit.ended();
    QVERIFY(!edit.deadline());
}

QTEST_APPLESS_MAIN(tst_SettingGroupEdit)
#include "tst_settinggroupedit.moc"
