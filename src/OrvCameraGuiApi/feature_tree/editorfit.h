#pragma once

#include <GenApi/GenApi.h>

class QVariant;
class QWidget;

enum class EditorFit { Same, Changed, OtherClass };

/**
 * Gives \a editor the range, step, base, decimals, unit or choices that \a fresh has: an editor of the same feature
 * that was made just now. Its value may change with that, which it announces like any other. Null for \a fresh asks
 * for nothing.
 */
EditorFit fitEditor(QWidget *editor, const QWidget *fresh);

/**
 * Lets \a editor, which the model made for \a feature, offer nothing that the feature refuses: the bounds of a fraction
 * are rounded inwards, and there are more decimals where its increment needs them. What is no number that can be
 * entered as a whole, a register, is read-only. Both may be null.
 */
void refineEditor(QWidget *editor, GenApi::IValue *feature);

/** Lets the range of \a editor include \a value, which its feature has, though it may refuse it. */
void includeValue(QWidget *editor, const QVariant &value);

/** Whether the value of \a feature, which may be null, can be read; true also where nobody can tell. */
bool canRead(GenApi::IValue *feature);
