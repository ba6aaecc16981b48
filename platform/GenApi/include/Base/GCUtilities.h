// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCException.h>
#include <Base/GCString.h>
#include <Base/GCStringVector.h>
#include <Base/GCTypes.h>
#include <GenICamVersion.h>

#define GC_COUNTOF(arr) (sizeof(arr) / sizeof(arr)[0])
#define GENICAM_UNUSED(unused_var) ((void)(unused_var))
#ifndef GENICAM_DEPRECATED
#define GENICAM_DEPRECATED(FUNCTION) FUNCTION __attribute__((deprecated))
#endif

namespace GENICAM_NAMESPACE {

/** \a s in another integer type; throws a RuntimeException where it does not fit. */
template <typename Td, typename Ts>
Td INTEGRAL_CAST2(Ts s)
{
    const Td d = static_cast<Td>(s);
    if (static_cast<Ts>(d) != s)
        throw RUNTIME_EXCEPTION("INTEGRAL_CAST failed");
    return d;
}

template <typename T>
T INTEGRAL_CAST(int64_t ll)
{
    return INTEGRAL_CAST2<T, int64_t>(ll);
}

ORV_GENAPI_EXPORT bool DoesEnvironmentVariableExist(const gcstring &VariableName);

/** Throws a RuntimeException when there is no such variable. */
ORV_GENAPI_EXPORT gcstring GetValueOfEnvironmentVariable(const gcstring &VariableName);

/** False when there is no such variable; \a VariableContent stays as it is then. */
ORV_GENAPI_EXPORT bool GetValueOfEnvironmentVariable(const gcstring &VariableName, gcstring &VariableContent);

/** Puts the values in place of "$(NAME)"; throws a RuntimeException for a variable that does not exist. */
ORV_GENAPI_EXPORT void ReplaceEnvironmentVariables(gcstring &Buffer, bool ReplaceBlankBy20 = false);

/** A path as part of a URL: with slashes, and bytes that a URL cannot have as %xx. */
ORV_GENAPI_EXPORT gcstring UrlEncode(const gcstring &Input);

/** The bytes for which %xx stands put in. */
ORV_GENAPI_EXPORT gcstring UrlDecode(const gcstring &Input);

/** Appends the parts of \a str between any of \a delimiters to \a tokens, empty ones left out. */
ORV_GENAPI_EXPORT void Tokenize(const gcstring &str, gcstring_vector &tokens, const gcstring &delimiters = " ");

} // namespace GENICAM_NAMESPACE
