// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/scltemplatestore.h"

#include <remoteclient/records.h>

#include <QtCore/QList>
#include <QtWidgets/QDialog>

#include <memory>

struct DataAttribute;
struct IEDNode;

class NumberGuard;
class QComboBox;

namespace Ui {
class ControlCo;
}

/// The dialog in which the operator prepares a control service (IEC 61850-7-2, clause 20) on one
/// data object: control value, test flag, originator category and check conditions.
///
/// Shows the object as it is at construction, keeps no reference to it, and calls no service. GUI
/// thread.
class ControlCo : public QDialog
{
    Q_OBJECT

public:
    using Entries = QList<SclTemplateStore::Entry>;

    /// `node` stands for a data object. Texts of enumerated values come from `descriptions` alone.
    /// `checkList` and `orCatList` are what the operator may choose from; `lockCheck` keeps the
    /// check conditions at their first entry.
    ControlCo(const IEDNode *node, const SclTemplateStore *descriptions, const Entries &checkList,
              const Entries &orCatList, bool lockCheck, QWidget *parent);
    ~ControlCo() override;

    /// What the operator chose: control value, test, check and originator category. The object
    /// reference and the control model are left for the caller. A control value that is not a
    /// number gives 0, and so does a list without a current entry.
    ControlBlock getControlBlock() const;

    /// One sentence on why what the operator typed is no value for the object, empty when it is
    /// one. Such a text can be accepted with a click and gives another value than was meant. Asks
    /// only once about a number that is merely doubtful.
    QString faultOfTypedValue();

protected:
    /// Enter does not accept such a text.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showCurrentValue(const DataAttribute &stVal, const SclTemplateStore &descriptions);
    void showControlValue(const DataAttribute &ctlVal, const SclTemplateStore &descriptions);

    std::unique_ptr<Ui::ControlCo> m_form;

    /// Whether the control value is taken from the list, not from the typed text.
    bool m_listEditor = true;
    NumberGuard *m_guard = nullptr; ///< of the typed text, when there is one
};
