// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

class FeatureSearch;
class FeatureTree;
class QLabel;
class QLineEdit;

/**
 * Finds features by their names, shown or GenICam, and makes them current. What is typed goes to the first match from
 * the row on that was current before. Return and Shift+Return go on and back, Escape closes.
 */
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /** Hidden. \a tree outlives it. */
    FindBar(FeatureTree *tree, QWidget *parent);

    /** Shows the bar and gives it the focus. */
    void open();

    /** Hides the bar; the tree gets the focus if the bar has it. */
    void leave();

    /** Goes to the match behind the current row, or before it; the last is followed by the first. Shows the bar. */
    void step(bool forward);

    /** Lets Tab reach the bar before \a next. */
    void standBefore(QWidget &next);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    enum class Wanted { Nothing, FromStart, Next, Previous };

    void addButton(Qt::ArrowType arrow, const QString &name, const QString &tip, bool forward);
    void addCloseButton();
    void textEdited(const QString &text);
    void followModel();
    void goOn();
    QModelIndex wantedMatch() const;
    void showCount();

    FeatureTree *const m_tree;
    FeatureSearch *const m_search;
    QLineEdit *const m_text;
    QLabel *const m_count;
    QPersistentModelIndex m_start; ///< the row from which on the text is searched; invalid: from the top
    Wanted m_wanted = Wanted::Nothing; ///< as soon as it is found
};
