// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QStringList>

class QWidget;

/// What is wrong with the looks of a window that is shown, one sentence for each flaw:
/// - a label, button, group box, list, spin box or header section too small for its text; a label
///   whose tool tip has the whole text may cut it;
/// - an editor too low for its font;
/// - a widget that reaches beyond its parent;
/// - two widgets of one parent that cover one another.
/// What scrolls inside an item view is left out.
QStringList flawsOf(const QWidget &window);
