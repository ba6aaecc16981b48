// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <QtGlobal>

namespace OrvGui {

/**
 * Every text that orvCamErrDescription() has for a failure, marked for translation here: its own header knows no Qt.
 * They are translated in the context of the mapper.
 */
constexpr const char *errorTexts[] = {
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Unknown code"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Unknown error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "File not found"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "File read error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Wrong configuration"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Invalid index"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "No device"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Invalid argument"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Invalid state"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "Flash erase error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Generic error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Tree error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Access error"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Parameter type is invalid"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Parameter is out of range"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Unknown param"),
    QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigMapper", "GenICam: Invalid argument"),
};

constexpr bool isMarkedForTranslation(OrvCamErr err) noexcept
{
    for (const char *const marked : errorTexts) {
        const char *const text = orvCamErrDescription(err);
        int i = 0;
        while (text[i] && text[i] == marked[i])
            ++i;
        if (text[i] == marked[i])
            return true;
    }
    return false;
}

/** Checks a range of codes: those with names, and some around them, which are called unknown. */
constexpr bool areMarkedForTranslation(int first, int last) noexcept
{
    for (int code = first; code <= last; ++code) {
        if (!isMarkedForTranslation(OrvCamErr(code)))
            return false;
    }
    return true;
}

static_assert(areMarkedForTranslation(-40300, -40000), "errorTexts lacks a text of orvCamErrDescription()");

} // namespace OrvGui
