// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>

/** The outcome of a call into the camera access library: 0 is success, every failure is negative. */
enum OrvCamErr : std::int32_t {
    OrvCamErr_Ok = 0,
    OrvCamErr_UnknownError = -40001,
    OrvCamErr_FileNotFound = -40002,
    OrvCamErr_FileReadError = -40003,
    OrvCamErr_WrongConfiguration = -40004,
    OrvCamErr_InvalidIndex = -40005,
    OrvCamErr_NoDevice = -40006,
    OrvCamErr_InvalidArgument = -40007,
    OrvCamErr_InvalidState = -40051,
    OrvCamErr_FlashEraseError = -40101,
    OrvCamErr_GenICamGenericError = -40200,
    OrvCamErr_GenICamTreeError = -40201,
    OrvCamErr_GenICamAccessError = -40202,
    OrvCamErr_GenICamTypeInvalid = -40203,
    OrvCamErr_GenICamOutOfRange = -40204,
    OrvCamErr_GenICamUnknownParam = -40205,
    OrvCamErr_GenICamInvalidArgument = -40206
};

namespace OrvGenParam {
using ::OrvCamErr;
} // namespace OrvGenParam

/**
 * The description of an error code, ASCII, never null. Codes without a name, including positive ones, are "Unknown
 * code". This intentionally differs from "Unknown error", which has its own code. The text for success is empty.
 */
constexpr const char *orvCamErrDescription(OrvCamErr err) noexcept
{
    switch (err) {
    case OrvCamErr_Ok:
        return "";
    case OrvCamErr_UnknownError:
        return "Unknown error";
    case OrvCamErr_FileNotFound:
        return "File not found";
    case OrvCamErr_FileReadError:
        return "File read error";
    case OrvCamErr_WrongConfiguration:
        return "Wrong configuration";
    case OrvCamErr_InvalidIndex:
        return "Invalid index";
    case OrvCamErr_NoDevice:
        return "No device";
    case OrvCamErr_InvalidArgument:
        return "Invalid argument";
    case OrvCamErr_InvalidState:
        return "Invalid state";
    case OrvCamErr_FlashEraseError:
        return "Flash erase error";
    case OrvCamErr_GenICamGenericError:
        return "GenICam: Generic error";
    case OrvCamErr_GenICamTreeError:
        return "GenICam: Tree error";
    case OrvCamErr_GenICamAccessError:
        return "GenICam: Access error";
    case OrvCamErr_GenICamTypeInvalid:
        return "GenICam: Parameter type is invalid";
    case OrvCamErr_GenICamOutOfRange:
        return "GenICam: Parameter is out of range";
    case OrvCamErr_GenICamUnknownParam:
        return "GenICam: Unknown param";
    case OrvCamErr_GenICamInvalidArgument:
        return "GenICam: Invalid argument";
    }
    return "Unknown code";
}
