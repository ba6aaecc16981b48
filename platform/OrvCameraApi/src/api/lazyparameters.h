// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <memory>
#include <mutex>

namespace OrvCameraApi {

class ParamArray;

/** The parameters of an interface or a device, made on the first request. Any thread may use it. */
class LazyParameters
{
public:
    /** \a owner outlives this object. */
    explicit LazyParameters(FeatureOwner &owner);
    ~LazyParameters();

    OrvGenParam::Array *get(OrvCamErr *err);

    /** Drops the values that the node map keeps. */
    void invalidate();

private:
    FeatureOwner &m_owner;
    std::mutex m_mutex;
    std::unique_ptr<ParamArray> m_array;
};

} // namespace OrvCameraApi
