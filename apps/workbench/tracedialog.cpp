// SPDX-License-Identifier: Apache-2.0
#include "tracedialog.h"

#include "ui_tracedialog.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

TraceDialog::TraceDialog(DriverAdministration &driver, int deviceNo, const QString &deviceName,
                         QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TraceDialog>())
    , m_model(driver, deviceNo)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->setupUi(this);
    setWindowTitle(tr("PDU Trace: %1").arg(deviceName));
    m_ui->lines->setModel(&m_model);
    m_ui->lines->setPlaceholder(tr("Nothing was exchanged with this device yet."));
    QHeaderView *header = m_ui->lines->header();
    constexpr int timeWidth = 110;
    header->resizeSection(TraceModel::TimeColumn,
                          qMax(timeWidth, header->sectionSizeHint(TraceModel::TimeColumn)));
    header->resizeSection(TraceModel::DirectionColumn,
                          qMax(timeWidth, header->sectionSizeHint(TraceModel::DirectionColumn)));
    m_ui->lines->scrollToBottom();

    auto *save = m_ui->buttonBox->addButton(tr("&Save Capture…"), QDialogButtonBox::ActionRole);
    save->setObjectName(QStringLiteral("save"));
    auto *clear = m_ui->buttonBox->addButton(tr("C&lear"), QDialogButtonBox::ActionRole);
    clear->setObjectName(QStringLiteral("clear"));
    for (QPushButton *button : {save, clear})
        button->setAutoDefault(false);
    connect(save, &QPushButton::clicked, this, [this, deviceNo] { emit captureWanted(deviceNo); });
    connect(clear, &QPushButton::clicked, this, [this] {
        m_model.clear();
        // What was cleared away was exchanged all the same.
        m_ui->lines->setPlaceholder({});
    });
    connect(&m_model, &TraceModel::exchanged, this, &TraceDialog::refresh);
    connect(m_ui->pause, &QAbstractButton::toggled, this, &TraceDialog::refresh);
}

void TraceDialog::refresh()
{
    if (m_ui->pause->isChecked())
        return;
    const QScrollBar *bar = m_ui->lines->verticalScrollBar();
    const bool follows = bar->value() == bar->maximum();
    m_model.refresh();
    if (follows)
        m_ui->lines->scrollToBottom();
}

TraceDialog::~TraceDialog() = default;
