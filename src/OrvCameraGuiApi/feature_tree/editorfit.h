#pragma once

class QWidget;

enum class EditorFit { Same, Changed, OtherClass };

/**
 * Gives \a editor the range, step, base, decimals, unit or choices that \a fresh has: an editor of the same feature
 * that was made just now. Its value may change with that, which it announces like any other. Null for \a fresh asks
 * for nothing.
 */
EditorFit fitEditor(QWidget *editor, const QWidget *fresh);
