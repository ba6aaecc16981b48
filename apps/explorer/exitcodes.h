// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/** What the process tells its caller. */
enum ExitCode {
    AllFine = 0,
    WrongUse = 1, ///< of the command line
    NoCamera = 2, ///< or no description
    Refused = 3, ///< by the camera: a feature, a setting, a picture
    Interrupted = 4, ///< by Ctrl+C, or asked to end; the camera is closed
    NoFile = 5 ///< a file cannot be read or written
};
