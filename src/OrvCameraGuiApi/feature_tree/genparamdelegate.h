// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include <QModelIndex>

#include <optional>

class QKeyEvent;

/**
 * Edits the values of a GenParamTreeModel, directly or behind proxies, with the editors that the model makes. The
 * differences between them are in EditorHandler.
 *
 * Only what the user has entered is written, so a view may open editors wherever the current item goes. An editor that
 * still shows the value that was loaded closes without writing. So do a combo box without current item, a text that its
 * validator does not accept and a button that was not clicked. An untouched editor follows the value of its feature,
 * and its range, increment, choices and unit. An entry that the user has begun is neither replaced nor written when the
 * value changes. When the value cannot be read, or is no number although the editor is for numbers, the editor shows
 * only its unit, or the text of the view as its placeholder.
 *
 * When an entry is written:
 * - a combo box: as soon as another item becomes current; it closes then;
 * - a command's button: executes at every click, and at Enter; it stays open;
 * - everything else: at Enter, and when the editor loses the focus, for which a click anywhere outside is enough. An
 *   integer that was typed counts only with Enter; one that was stepped to counts always, unless something was typed
 *   in its place.
 *
 * EntryGuard reads numbers: in the locale and with both decimal signs, as a whole or not at all. Enter on a text that
 * is no number in the range leaves the editor open, shows the value again and displays the limits.
 *
 * A confirmed entry is written also when it equals the value that was loaded, if the feature has another value by then,
 * or one that the editor could not show. Enter confirms an entry; a fraction is confirmed also by leaving its editor.
 * The mouse wheel changes no value: it scrolls the view.
 *
 * The model reports a write that fails. The editor closes all the same, and the view shows the feature's value.
 */
class GenParamDelegate : public ReadableDelegate
{
    Q_OBJECT

public:
    explicit GenParamDelegate(QObject *parent = nullptr);
    ~GenParamDelegate() override;

    /** The editor that the model makes for \a index, owned by \a parent; the base class's when it makes none. */
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /**
     * Shows the value of \a index in \a editor, which emits nothing meanwhile. Does nothing once the user has touched
     * the editor. An editor of another class than the value asks for is left as it is.
     */
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

    /** Writes the entry in \a editor, if there is one; see the class. \a index has to be of \a model. */
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

    /** The editor fills the cell, whatever its size hint. */
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /** Gives \a editor up: OpenCalls. */
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;

    /**
     * From now on \a editor loses the focus, which ends editing, at the next press of a mouse button anywhere in the
     * application except on the editor, its pop-ups and its context menu. Null is ignored.
     */
    void captureMouseForEditor(QWidget *editor) const;

    /** The cell of an editor that this class has loaded, invalid when it is gone; nothing for other widgets. */
    static std::optional<QModelIndex> editedIndex(const QWidget *editor);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class MouseTracker;

    void connectEditor(QWidget *editor, ControlData::Kind kind) const;
    bool fitToFeature(QWidget *editor, const QModelIndex &index) const;
    bool commitTyped(QWidget *editor) const;
    bool filterEnter(QWidget *editor, QKeyEvent *event);
    bool filterEnterOfNumber(QWidget *editor);
    void endEditingSoon(QWidget *editor);
    void releaseFocus(QWidget *editor) const;
};
