// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/operationresult.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

class IEC61850ControllerInterface;
struct ControlBlock;
struct DataObject;
struct IEDNode;

/// Whether the browser offers the control services for an object: its common data class is one of
/// those, compared exactly.
bool isControllable(const DataObject &dataObject);

/// The object's control model (the value of its "ctlModel"), 0 without one. A driver may use the
/// bits above the low eight for its own.
quint8 controlModel(const DataObject &dataObject);

enum class ControlService { Select, Operate, Cancel };

/// Whether the operator is asked for the request of a control service when the object has this
/// control model; otherwise the driver gets an empty one.
bool asksForRequest(ControlService service, quint8 controlModel);

/// What the services of the browser ask of a device for a node of its tree: which operation of the
/// controller, with which names and references. They show nothing and change nothing in the tree;
/// lists that come back are not looked at.
///
/// Every service makes one call, which blocks until the driver has answered, and answers with its
/// result and the driver's error text. For a node of a kind that a service is not for, nothing is
/// asked, and the answer is OperationSucceeded. Nothing of the node is used after the call.
class NodeServices
{
public:
    struct Variable
    {
        QString ldName;
        QString reference; ///< in the logical device
    };

    /// @param controller not owned, must outlive every service that runs
    NodeServices(IEC61850ControllerInterface &controller, long deviceNo);

    /// Read a data set, data object or data attribute with all its functional constraints.
    OperationResult read(const IEDNode *node, QString &error);
    /// Read what a logical node has of one functional constraint.
    OperationResult readConstraint(const IEDNode *node, const QString &constraint, QString &error);

    /// The variable of an attribute; one with an empty reference for any other node.
    static Variable variableOf(const IEDNode *node);
    OperationResult write(const Variable &variable, const QVariant &value, QString &error);
    OperationResult read(const Variable &variable, QString &error);

    /// @p request is what the operator chose for an object of @p request.controlModel; its
    /// reference is filled in here.
    OperationResult control(ControlService service, const IEDNode *node, ControlBlock request,
                            QString &error);

    /// @param node the group of data sets it comes into; any node when it is not persistent
    OperationResult createDataSet(const IEDNode *node, const QString &name,
                                  const QStringList &members, bool nonPersistent, QString &error);
    OperationResult deleteDataSet(const IEDNode *node, QString &error);

    OperationResult serverDirectory(const IEDNode *node, QString &error);
    OperationResult logicalDeviceDirectory(const IEDNode *node, QString &error);
    OperationResult logicalNodeDirectory(const IEDNode *node, QString &error);
    OperationResult dataDirectory(const IEDNode *node, QString &error);
    OperationResult dataSetList(const IEDNode *node, QString &error);
    OperationResult dataSetDirectory(const IEDNode *node, QString &error);
    OperationResult bufferedReports(const IEDNode *node, QString &error);
    OperationResult unbufferedReports(const IEDNode *node, QString &error);
    OperationResult settingGroupBlock(const IEDNode *node, QString &error);

private:
    OperationResult reports(const IEDNode *node, const QString &kind, QString &error);

    IEC61850ControllerInterface &m_controller;
    const long m_deviceNo;
};
