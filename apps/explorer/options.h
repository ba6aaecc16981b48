// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraApi/transports.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/** Something that is done with a camera without a window. */
struct ScriptStep
{
    enum class Kind { Get, Set, Save, Load, Snap };

    Kind kind = Kind::Get;
    QString argument; ///< a feature, NAME=VALUE, or a file
};

/** The options of the command line. */
struct Options
{
    enum class Action {
        ShowWindow,
        SaveScreenshot,
        ListCameras,
        RunScript,
        PrintText,
        Fail ///< the command line cannot be used
    };

    Action action = Action::ShowWindow;
    QString xmlFile; ///< description to show instead of a camera; empty: a camera
    QString cameraId; ///< identifier of the camera to open; empty: ask, for a screenshot the first that can be opened
    std::optional<OrvTransports::Cameras> cameras; ///< none: as the environment says, for a person as the settings say
    OrvTransports::Discovery discovery; ///< for them
    QVector<ScriptStep> steps; ///< of RunScript, in their order
    QString screenshotDir; ///< where SaveScreenshot writes
    QString language; ///< of the windows; empty: the one of the system
    QString text; ///< what PrintText prints; for Fail one line that says why
};

/** Reads \a arguments, whose first is the program's name. */
Options parseOptions(const QStringList &arguments);
