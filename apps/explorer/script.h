// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "exitcodes.h"
#include "options.h"

#include <memory>

class CameraSource;

/**
 * Does what the command line says without a window, and needs no display. Results go to the standard output, what went
 * wrong to the standard error. Ctrl+C and SIGTERM end it between two accesses of the camera, which is closed then; a
 * second one ends the process.
 */
class Script
{
public:
    Script();

    ExitCode listCameras();
    ExitCode run(const Options &options);

private:
    std::unique_ptr<CameraSource> open(const Options &options);
    ExitCode perform(const ScriptStep &step, CameraSource &source);
    ExitCode get(const QString &name, CameraSource &source);
    ExitCode set(const QString &assignment, CameraSource &source);
    ExitCode execute(const QString &name, CameraSource &source);
    ExitCode save(const QString &path, CameraSource &source);
    ExitCode load(const QString &path, CameraSource &source);
    ExitCode snap(const QString &path, CameraSource &source);
};
