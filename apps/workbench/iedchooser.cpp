// SPDX-License-Identifier: Apache-2.0
#include "iedchooser.h"

#include "ui_iedchooser.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QPushButton>

IedChooser::IedChooser(const QString &file, const QVector<IedSummary> &ieds, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::IedChooser>())
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->setupUi(this);
    m_ui->question->setText(tr("\"%1\" holds %2 IEDs. Which of them do you want to open?")
                                .arg(QFileInfo(file).fileName(), QString::number(ieds.size())));
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("&Open"));

    for (const IedSummary &ied : ieds) {
        auto *item = new QTreeWidgetItem(m_ui->ieds);
        item->setText(0, ied.name);
        item->setText(1, ied.logicalDevices > 0 ? QString::number(ied.logicalDevices) : tr("none"));
        item->setText(2, ied.description);
        if (ied.logicalDevices == 0) {
            item->setFlags(Qt::NoItemFlags);
            item->setToolTip(0, tr("This IED has no logical devices, so there is nothing to "
                                   "browse."));
        } else if (!m_ui->ieds->currentItem()) {
            m_ui->ieds->setCurrentItem(item);
        }
    }
    constexpr int gap = 24;
    for (const int column : {0, 1}) {
        m_ui->ieds->resizeColumnToContents(column);
        m_ui->ieds->setColumnWidth(column, m_ui->ieds->columnWidth(column) + gap);
    }
    m_ui->ieds->setFocus();

    const auto enableOpen = [this] {
        m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!chosenIeds().isEmpty());
    };
    connect(m_ui->ieds, &QTreeWidget::itemSelectionChanged, this, enableOpen);
    connect(m_ui->ieds, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (!chosenIeds().isEmpty())
            accept();
    });
    enableOpen();
}

IedChooser::~IedChooser() = default;

QStringList IedChooser::chosenIeds() const
{
    QStringList names;
    const QList<QTreeWidgetItem *> items = m_ui->ieds->selectedItems();
    for (const QTreeWidgetItem *item : items)
        names << item->text(0);
    return names;
}
