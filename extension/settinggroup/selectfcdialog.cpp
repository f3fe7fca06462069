// SPDX-License-Identifier: Apache-2.0
#include "selectfcdialog.h"

#include "ui_selectfcdialog.h"

SelectFCDialog::SelectFCDialog(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::SelectFCDialog>())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    connect(m_form->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_form->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

SelectFCDialog::~SelectFCDialog() = default;

void SelectFCDialog::setFCList(const QStringList &fcs)
{
    m_form->fcList->addItems(fcs);
}

QString SelectFCDialog::selectedFC()
{
    return m_form->fcList->currentText();
}
