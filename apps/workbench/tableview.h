// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QTreeView>

/// A flat list of rows: says in its place why it is empty, and copies the selected rows as text.
class TableView : public QTreeView
{
    Q_OBJECT

public:
    explicit TableView(QWidget *parent = nullptr);

    /// Text shown while there is no row.
    void setPlaceholder(const QString &text);

    /// Give a column its usual width, or more where the language of its title needs it. Once the
    /// model is set.
    void setUsualWidth(int column, int width);

    /// Keep the newest row, the last one, in sight, as long as nobody looks at older ones. Once the
    /// model is set.
    void followNewest();

    /// The selected rows from top to bottom, one line each, cells separated by tabulators. The
    /// view's action, Ctrl+C, copies them.
    QString selectedText() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_placeholder;
    bool m_showedNewest = true; ///< before the row that comes now
};
