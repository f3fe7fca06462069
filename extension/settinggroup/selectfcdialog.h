// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

#include <memory>

namespace Ui {
class SelectFCDialog;
}

/// Lets the operator choose one functional constraint of those that are possible. Modal: construct,
/// setFCList(), exec(), and after Accepted selectedFC().
class SelectFCDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SelectFCDialog(QWidget *parent);
    ~SelectFCDialog() override;

    /// Append the texts in the order given; the first of an empty list becomes the chosen one.
    void setFCList(const QStringList &fcs);
    /// The chosen text, empty when there is nothing to choose.
    QString selectedFC();

private:
    std::unique_ptr<Ui::SelectFCDialog> m_form;
};
