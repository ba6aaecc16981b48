// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * The namespaces of GenICam carry a version, and GenICam and GenApi are aliases of them, as in the reference
 * implementation: code that forward-declares GenApi::INode does not compile against either. Two implementations with
 * different versions can live in one process. A build may set other names before any header is read.
 */
#ifndef GENICAM_NAMESPACE
#define GENICAM_NAMESPACE GenICam_Orv_1
#endif
#ifndef GENAPI_NAMESPACE
#define GENAPI_NAMESPACE GenApi_Orv_1
#endif

namespace GENICAM_NAMESPACE {
}
namespace GENAPI_NAMESPACE {
}
namespace GenICam = GENICAM_NAMESPACE;
namespace GenApi = GENAPI_NAMESPACE;

/** Type information of interfaces and exceptions is shared between libraries, whatever visibility they are built with.
 */
#define ORV_GENAPI_EXPORT __attribute__((visibility("default")))
