// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/controldata.h>

#include <memory>

/** A new editor for a cell, held until it is complete: nothing leaks when a getter throws meanwhile. */
template <typename Editor>
std::unique_ptr<Editor> makeFrameless()
{
    auto editor = std::make_unique<Editor>(static_cast<QWidget *>(nullptr));
    editor->setFrame(false);
    return editor;
}
