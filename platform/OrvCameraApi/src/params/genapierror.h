// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <GenApi/GenApi.h>

#include <exception>
#include <string>

namespace OrvCameraApi {

/** Runs \a action, which may throw anything, and returns the error code for the outcome. */
template <typename Action>
OrvCamErr errorOf(Action &&action) noexcept
{
    try {
        action();
        return OrvCamErr_Ok;
    } catch (const GenICam::AccessException &) {
        return OrvCamErr_GenICamAccessError;
    } catch (const GenICam::OutOfRangeException &) {
        return OrvCamErr_GenICamOutOfRange;
    } catch (const GenICam::InvalidArgumentException &) {
        return OrvCamErr_GenICamInvalidArgument;
    } catch (...) {
        return OrvCamErr_GenICamGenericError;
    }
}

/** Runs \a action, which may throw anything, and returns what is to be said about that; empty when it has not thrown.
 */
template <typename Action>
std::string failureOf(Action &&action)
{
    std::string why;
    try {
        action();
        return why;
    } catch (const GenICam::GenericException &error) {
        why = error.GetDescription();
    } catch (const std::exception &error) {
        why = error.what();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
    return why.empty() ? "Unknown error" : why;
}

/** Stores \a outcome in \a err, which may be null. */
inline void setError(OrvCamErr *err, OrvCamErr outcome)
{
    if (err)
        *err = outcome;
}

} // namespace OrvCameraApi
