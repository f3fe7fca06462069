// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/sclexplanations.h"

#include <devicemodel/enumtype.h>

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

#include <memory>

class PhysicalDevice;
class QTreeWidgetItem;

namespace Ui {
class DatasetSelectWidget;
}

/// Asks for the name of a new data set and for its members, picked from the status and measurement
/// data of a device. Calls no service: read dataSetName() and members() after it was accepted.
class DatasetSelectWidget : public QDialog
{
    Q_OBJECT

public:
    explicit DatasetSelectWidget(QWidget *parent);
    ~DatasetSelectWidget() override;

    /// Fill the tree, once, from a device (not owned, not kept).
    void setDevice(const PhysicalDevice *device);

    QString dataSetName() const;

    /// The references of what is ticked, in tree order: logical device "/" logical node "$" FC "$"
    /// path. A data object or attribute that is ticked as a whole is one reference.
    QStringList members() const;

public slots:
    /// Keep the check marks above and below a changed item consistent with it.
    void slotItemChange(QTreeWidgetItem *item, int column);
    /// Accept when there is a member and a name; otherwise say what is missing.
    void slotAccept();

private:
    void connectItemChange();
    void disconnectItemChange();

    std::unique_ptr<Ui::DatasetSelectWidget> m_form;
    SclExplanations m_explanations;
    QMap<QString, EnumType> m_enumerations; ///< the device's
};
