// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QDialog>

class QLineEdit;
class QTextBrowser;
class QUrl;

/// Shows the operator guide and the page of messages, which are compiled into the program.
class GuideViewer : public QDialog
{
    Q_OBJECT

public:
    explicit GuideViewer(QWidget *parent = nullptr);

    /// Show a page, and of it the heading that the URL's fragment names.
    void open(const QUrl &url);

private:
    void find();

    QTextBrowser *m_browser;
    QLineEdit *m_pattern;
};
