// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class Table;

/** What the processor does for pictures that come from a camera and are shown, beside images that are only shown. */
void compareShowing(Table &table);
