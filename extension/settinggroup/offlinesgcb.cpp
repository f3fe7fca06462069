// SPDX-License-Identifier: Apache-2.0
#include "offlinesgcb.h"

#include "ui_offlinesgcb.h"

OfflineSGCB::OfflineSGCB(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::OfflineSGCB>())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    connect(m_form->pushButton, &QPushButton::released, this, &QDialog::reject);
}

OfflineSGCB::~OfflineSGCB() = default;

void OfflineSGCB::setValues(int numOfSG, int activeGroup)
{
    m_form->numOfSetting->setText(QString::number(numOfSG));
    m_form->active->setText(QString::number(activeGroup));
}
