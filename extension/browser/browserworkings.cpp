// SPDX-License-Identifier: Apache-2.0
#include "browserworkings.h"

#include <QtWidgets/QAbstractItemDelegate>
#include <QtWidgets/QTreeView>

BrowserWorkings::Use::Use(BrowserWorkings *workings)
    : m_workings(workings)
{
    ++m_workings->m_uses;
}

BrowserWorkings::Use::~Use()
{
    // Later: the view's own functions may be the ones that called.
    if (--m_workings->m_uses == 0 && m_workings->m_isLeft)
        m_workings->deleteLater();
}

BrowserWorkings::BrowserWorkings(long deviceNo)
    : services(controller, deviceNo)
{
}

BrowserWorkings::~BrowserWorkings()
{
    // The model's nodes point at the device.
    delete m_view;
    delete m_model;
    delete m_delegate;
}

void BrowserWorkings::leave(QTreeView *view, QAbstractItemModel *model,
                            QAbstractItemDelegate *delegate)
{
    m_isLeft = true;
    m_view = view;
    m_model = model;
    m_delegate = delegate;
    if (m_uses == 0) {
        delete this;
        return;
    }
    m_view->setParent(nullptr);
    m_model->setParent(nullptr);
    m_delegate->setParent(nullptr);
}
