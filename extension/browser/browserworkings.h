// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "nodeservices.h"

#include "model/sclexplanations.h"
#include "model/scltemplatestore.h"

#include <devicemodel/physicaldevice.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QObject>

class QAbstractItemDelegate;
class QAbstractItemModel;
class QTreeView;

/// What the services of a browser stand on while they run.
///
/// A host may destroy a browser while a call, a dialog or a menu of it is open. The functions on
/// the stack then still need the controller and the device, and the item view whose event led to
/// them still needs itself: all of that lives until the last service has returned to the event
/// loop. GUI thread.
class BrowserWorkings : public QObject
{
public:
    /// A service that runs.
    class Use
    {
    public:
        explicit Use(BrowserWorkings *workings);
        ~Use();
        Q_DISABLE_COPY(Use)

    private:
        BrowserWorkings *const m_workings;
    };

    explicit BrowserWorkings(long deviceNo);
    ~BrowserWorkings() override;

    /// The browser is being destroyed: destroy this as well, with its view, and when services run,
    /// when they have returned.
    void leave(QTreeView *view, QAbstractItemModel *model, QAbstractItemDelegate *delegate);

    const SclTemplateStore templates;
    SclExplanations explanations;
    IEC61850ControllerInterface controller;
    NodeServices services;
    PhysicalDevice device;

private:
    int m_uses = 0;
    bool m_isLeft = false;
    QTreeView *m_view = nullptr;
    QAbstractItemModel *m_model = nullptr;
    QAbstractItemDelegate *m_delegate = nullptr;
};
