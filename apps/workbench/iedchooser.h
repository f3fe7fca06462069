// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "importresult.h"

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

#include <memory>

namespace Ui {
class IedChooser;
}

/// Asks which IEDs of a file to open; several may be taken. An IED without logical devices cannot
/// be chosen, since there is nothing to browse.
class IedChooser : public QDialog
{
    Q_OBJECT

public:
    IedChooser(const QString &file, const QVector<IedSummary> &ieds, QWidget *parent = nullptr);
    ~IedChooser() override;

    QStringList chosenIeds() const;

private:
    const std::unique_ptr<Ui::IedChooser> m_ui;
};
