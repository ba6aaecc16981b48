// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCNamespace.h>

#include <cstddef>
#include <cstdint>

/** What interfaces are declared with, also ahead of their headers. */
#define GENICAM_INTERFACE struct

#define GC_INT64_MAX INT64_MAX
#define GC_INT64_MIN INT64_MIN
#define GC_UINT64_MAX UINT64_MAX
#define GC_INT32_MAX INT32_MAX
#define GC_INT32_MIN INT32_MIN
#define GC_UINT32_MAX UINT32_MAX
#define GC_INT8_MAX INT8_MAX
#define GC_INT8_MIN INT8_MIN
#define GC_UINT8_MAX UINT8_MAX

/** Stands before the d of a printf format for an int64_t. */
#if INTPTR_MAX == INT64_MAX
#define FMT_I64 "l"
#else
#define FMT_I64 "ll"
#endif

#define GC_UNUSED(unused_var) (void)(unused_var)

namespace GENICAM_NAMESPACE {

/** Versions of the same Major are made for one another; the Minor of what is used may be the higher one. */
struct Version_t
{
    uint16_t Major;
    uint16_t Minor;
    uint16_t SubMinor;
};

} // namespace GENICAM_NAMESPACE

using GENICAM_NAMESPACE::Version_t;
