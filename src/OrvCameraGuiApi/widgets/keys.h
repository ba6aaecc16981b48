// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QKeyEvent;

/** The meaning of keys in a spin box. */
namespace Keys {

bool isReturn(const QKeyEvent &event);

/** Up, Down and the page keys. */
bool isStep(const QKeyEvent &event);

/** Backspace and Delete. */
bool isDeletion(const QKeyEvent &event);

/** By the rule of a line edit: Ctrl with Alt, which is AltGr, types as well. */
bool isCharacter(const QKeyEvent &event);

/** Ctrl+A, and the cursor keys with Shift. */
bool isSelection(const QKeyEvent &event);

/** Undo and redo. */
bool isUndo(const QKeyEvent &event);

} // namespace Keys
