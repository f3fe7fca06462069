// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "browserworkings.h"

#include "model/attributenodes.h"

#include <devicemodel/mmsvalue.h>

#include <QtWidgets/QDialog>

#include <memory>

class IEDModel;
class IEDModelDelegate;
class MMSListener;
class NodeMenu;
class QMenu;
struct FailureTexts;
struct HostTaskContext;
struct IEDNode;

namespace Ui {
class IEDModelView;
}

/// The IED browser: the data model of one IED as a tree with live values, and the client services
/// on the selected node.
///
/// Construct it, call init(), and show it only when that returned true. GUI thread; every service
/// is a controller call that blocks the window until the driver has answered. The host context and
/// what it points at must outlive the window. The window may be closed and destroyed at any time,
/// also while a dialog, a box or a menu of it is open: those end as if they were cancelled.
class IEDModelView : public QDialog
{
    Q_OBJECT

public:
    /// `taskParameter` is accepted for the host's sake and not kept.
    IEDModelView(int driverNo, int deviceNo, int taskParameter, HostTaskContext *context,
                 QWidget *parent);
    ~IEDModelView() override;

public slots:
    /// Fetch and show the model, create the service actions, start to listen for live values.
    /// \return false when the model could not be fetched; the operator has been told
    bool init();
    void updateMMSValue(const QList<MMSValue> &values);
    /// A new menu of what can be done with a node; the caller deletes it.
    QMenu *createTaskMenu(IEDNode *node);
    void slotContextMenu(QPoint pos);
    void slotExpanded(const QModelIndex &index);
    void writeValue(const QModelIndex &index, const QVariant &value);
    void readData();
    void writeData();
    void selectCo();
    void operateCo();
    void openReport();
    void readSGCB();
    void cancelCo();
    void expandChild();
    void openSGCB();
    void collapseChild();
    void locate();
    void createDataSet();
    void deleteDataSet();
    void checkDoubleclick(const QModelIndex &index);
    void readDataSetList();
    void readDataSetDirectory();
    void readXRCB();
    void readServerDirectory();
    void readLogicalDevice();
    void readLogicalNode();
    void readDataDirectory();

private:
    using Service = OperationResult (NodeServices::*)(const IEDNode *node, QString &error);

    void createActions();

    /// Send a control service for the current data object; the operator is asked for the request
    /// when the object's control model wants that.
    void control(ControlService service);
    /// Request a service for the current node, if there is one.
    void runService(Service service);
    IEDNode *currentNode() const;
    FailureTexts failureTexts() const;
    void tellThatTheModelIsNotWhole();

    /// Make a call of a service, `call(error)`, under the busy cursor and report its failure.
    /// \return whether it succeeded and the window is still there
    template <typename Call>
    bool request(Call call);

    std::unique_ptr<Ui::IEDModelView> m_form;
    BrowserWorkings *const m_workings; ///< leaves when the window goes
    const SclTemplateStore &m_templates;
    IEDModel *m_model;
    HostTaskContext *m_hostContext;
    IEC61850ControllerInterface &m_controller;
    NodeServices &m_services;
    PhysicalDevice &m_device;
    AttributeNodes m_attributeIndex;
    IEDModelDelegate *m_delegate;
    MMSListener *m_listener = nullptr;
    int m_deviceNo;
    int m_driverNo;
    NodeMenu *m_menu = nullptr; ///< since init()
    bool m_offline = false;
};
