// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/controldata.h>

#include <functional>

class QLineEdit;

enum class EditorFit { Same, Changed, OtherClass };

/**
 * How the delegate fills, follows and reads the editors of one class: everything that depends on the class of an editor
 * is in its handler. One object without state serves all editors of a class.
 *
 * By default an editor is one of Qt's: its user property is the value, and a spin box among them has a line edit.
 * Whatever a handler sets, the editor announces it like any other change: the caller blocks its signals.
 */
class EditorHandler
{
public:
    /** The handler of \a editor; the default one for a class that the model makes no editor of. */
    static const EditorHandler &of(const QWidget &editor);

    /** The handler of the editors that show values like \a value; null when none do. */
    static const EditorHandler *forValue(const QVariant &value);

    /** Whether this is the default handler: Qt's own delegate reads and fills the editor. */
    virtual bool isDefault() const { return false; }
    virtual bool handles(const QWidget &editor) const = 0;
    virtual bool shows(const QVariant &value) const;

    /** Shows \a value, for which shows() is true. */
    virtual void load(QWidget &editor, const QVariant &value) const;

    /** Shows that there is no value; false when the text field has to do that. */
    virtual bool showNothing(QWidget &editor) const;

    /** The value that the model is given. */
    virtual QVariant value(const QWidget &editor) const;

    /** Differs as soon as the user has changed the editor, also when value() stays the same. */
    virtual QVariant content(const QWidget &editor) const { return value(editor); }

    /** Whether nothing may be written at all: a view that changes its current item asks no validator. */
    virtual bool hasBadEntry(const QWidget &editor) const;

    /** Whether Enter can end the entry; a validator may correct the text. */
    virtual bool hasAcceptableText(QWidget &editor) const;

    /** Whether what is typed counts when the editor is left; otherwise only with Enter. For numbers. */
    virtual bool countsWhenLeft() const { return false; }

    /** The field in which text is typed; null when there is none. */
    virtual QLineEdit *textField(QWidget &editor) const;

    /** From now on calls \a changed with each change of the value that is not typed; \a context as in connect(). */
    virtual void connectSteps(QWidget &editor, const QObject *context, const std::function<void()> &changed) const;

    /** Whether the editor is closed after an entry that is written at once. */
    enum class After { StaysOpen, Closes };

    /**
     * From now on calls \a commit with each entry, which is to be written at once. False when the editor's entries are
     * written when editing ends, or when it has been made for another \a kind.
     */
    virtual bool connectEntries(QWidget &editor, ControlData::Kind kind, const QObject *context,
                                const std::function<void(After)> &commit) const;

    /** Whether the editor has presses instead of values. The two other operations are for buttons only. @{ */
    virtual bool isButton() const { return false; }
    virtual void press(QWidget &editor) const;

    /** Whether there has been a press since the last call. */
    virtual bool takePress(QWidget &editor) const;
    /** @} */

    /** Lets the range of \a editor include \a value, which its feature has, though it may refuse it. */
    virtual void includeValue(QWidget &editor, const QVariant &value) const;

    /**
     * Gives \a editor the range, step, base, decimals, unit or choices of \a fresh, an editor with the same handler
     * that was made for the same feature just now. Its value may change with that.
     */
    virtual EditorFit fit(QWidget &editor, const QWidget &fresh) const;

protected:
    EditorHandler() = default;
    ~EditorHandler() = default;
    Q_DISABLE_COPY(EditorHandler)
};
