// SPDX-License-Identifier: Apache-2.0
#include "lookcheck.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSizeGrip>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

namespace {

QString nameOf(const QWidget &widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName());
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// Qt moves a dock out of sight while another one of its tabs is in front.
bool isBehindATab(const QWidget &widget)
{
    return qobject_cast<const QDockWidget *>(&widget) && widget.visibleRegion().isEmpty();
}

class LookCheck
{
public:
    QStringList flaws;

    void look(const QWidget &parent)
    {
        QList<const QWidget *> children;
        for (QObject *object : parent.children()) {
            const auto *child = qobject_cast<const QWidget *>(object);
            if (child && !child->isWindow() && child->isVisible() && !isBehindATab(*child))
                children << child;
        }
        for (int i = 0; i < children.size(); ++i) {
            const QWidget &child = *children[i];
            lookAtText(child);
            lookAtPlace(child, parent);
            for (int other = i + 1; other < children.size(); ++other)
                lookAtPair(child, *children[other]);
            if (const auto *view = qobject_cast<const QAbstractItemView *>(&child))
                lookAtHeaders(*view);
            else
                look(child);
        }
    }

private:
    void requireRoom(const QWidget &widget, const QString &text, const QSize &room,
                     const QSize &needed)
    {
        if (room.width() >= needed.width() && room.height() >= needed.height())
            return;
        flaws << QStringLiteral("%1 has room for %2 pixels; its text \"%3\" takes %4.")
                     .arg(nameOf(widget), sizeText(room), text, sizeText(needed));
    }

    void requireRoom(const QWidget &widget, const QString &text, const QSize &room)
    {
        requireRoom(widget, text, room, widget.fontMetrics().size(Qt::TextShowMnemonic, text));
    }

    void requireHeight(const QWidget &widget, int height)
    {
        requireRoom(widget, QStringLiteral("M"), {widget.width(), height});
    }

    void lookAtText(const QWidget &widget)
    {
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            lookAtLabel(*label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            lookAtButton(*button);
        else if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
            lookAtGroupBox(*box);
        else if (const auto *list = qobject_cast<const QComboBox *>(&widget))
            lookAtComboBox(*list);
        else if (const auto *spin = qobject_cast<const QSpinBox *>(&widget))
            lookAtSpinBox(*spin);
        else if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
            requireHeight(*edit, edit->contentsRect().height());
    }

    void lookAtLabel(const QLabel &label)
    {
        if (label.text().isEmpty() || label.toolTip() == label.text().toHtmlEscaped())
            return;
        if (label.wordWrap())
            requireRoom(label, label.text(), label.size(),
                        {label.minimumSizeHint().width(), label.heightForWidth(label.width())});
        else
            requireRoom(label, label.text(), label.contentsRect().size());
    }

    void lookAtButton(const QAbstractButton &button)
    {
        if (button.text().isEmpty())
            return;
        QSize room = button.contentsRect().size();
        QStyleOptionButton option;
        option.initFrom(&button);
        if (qobject_cast<const QPushButton *>(&button)) {
            room = button.style()
                       ->subElementRect(QStyle::SE_PushButtonContents, &option, &button)
                       .size();
        } else if (qobject_cast<const QCheckBox *>(&button)) {
            room = button.style()
                       ->subElementRect(QStyle::SE_CheckBoxContents, &option, &button)
                       .size();
        } else if (qobject_cast<const QRadioButton *>(&button)) {
            room = button.style()
                       ->subElementRect(QStyle::SE_RadioButtonContents, &option, &button)
                       .size();
        }
        requireRoom(button, button.text(), room);
    }

    void lookAtGroupBox(const QGroupBox &box)
    {
        // The box starts its title where its contents start and cuts it at its own edge.
        if (!box.title().isEmpty())
            requireRoom(box, box.title(), {box.contentsRect().width(), box.height()});
    }

    void lookAtComboBox(const QComboBox &list)
    {
        QStyleOptionComboBox option;
        option.initFrom(&list);
        option.editable = list.isEditable();
        const QRect field = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, &list);
        if (list.isEditable())
            requireHeight(list, field.height());
        else
            requireRoom(list, list.currentText(), field.size());
    }

    void lookAtSpinBox(const QSpinBox &spin)
    {
        QStyleOptionSpinBox option;
        option.initFrom(&spin);
        option.buttonSymbols = spin.buttonSymbols();
        option.frame = spin.hasFrame();
        const QRect field = spin.style()->subControlRect(QStyle::CC_SpinBox, &option,
                                                         QStyle::SC_SpinBoxEditField, &spin);
        requireRoom(spin, spin.text(), field.size());
    }

    void lookAtHeaders(const QAbstractItemView &view)
    {
        const QList<QHeaderView *> headers = view.findChildren<QHeaderView *>();
        for (const QHeaderView *header : headers) {
            if (!header->isVisible() || header->orientation() != Qt::Horizontal)
                continue;
            const int margins =
                2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
            for (int section = 0; section < header->count(); ++section) {
                if (header->isSectionHidden(section))
                    continue;
                const QString text = view.model()->headerData(section, Qt::Horizontal).toString();
                // Beside the text come margins and, where the section can be sorted by, an arrow.
                requireRoom(*header, text,
                            {header->sectionSize(section), header->height() - margins},
                            {header->sectionSizeHint(section), header->fontMetrics().height()});
            }
        }
    }

    void lookAtPlace(const QWidget &widget, const QWidget &parent)
    {
        if (widget.width() == 0 || widget.height() == 0)
            flaws << QStringLiteral("%1 is shown without a size.").arg(nameOf(widget));
        else if (!parent.rect().contains(widget.geometry()))
            flaws << QStringLiteral("%1 reaches beyond %2.").arg(nameOf(widget), nameOf(parent));
    }

    void lookAtPair(const QWidget &first, const QWidget &second)
    {
        for (const QWidget *widget : {&first, &second}) {
            if (qobject_cast<const QSizeGrip *>(widget) ||
                qobject_cast<const QSplitterHandle *>(widget))
                return;
        }
        if (first.geometry().intersects(second.geometry()))
            flaws << QStringLiteral("%1 covers %2.").arg(nameOf(first), nameOf(second));
    }
};

} // namespace

QStringList flawsOf(const QWidget &window)
{
    LookCheck check;
    check.look(window);
    return check.flaws;
}
