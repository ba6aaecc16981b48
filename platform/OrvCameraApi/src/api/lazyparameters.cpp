// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "lazyparameters.h"

#include "genapierror.h"
#include "paramarray.h"

namespace OrvCameraApi {

LazyParameters::LazyParameters(FeatureOwner &owner)
    : m_owner(owner)
{
}

LazyParameters::~LazyParameters() = default;

OrvGenParam::Array *LazyParameters::get(OrvCamErr *err)
{
    const ParametersAnswer answer = m_owner.parametersAnswer();
    setError(err, answer.err);
    if (!answer.areGiven)
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_array) {
        const OrvCamErr failure = errorOf([this] {
            m_array = std::make_unique<ParamArray>(m_owner.makeNodeMap(), [this] { return m_owner.isConnected(); });
        });
        if (failure)
            setError(err, failure);
    }
    return m_array.get();
}

void LazyParameters::invalidate()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    ParamArray *const array = m_array.get();
    lock.unlock(); // sinks are called
    if (array)
        array->GetNodeMap()->InvalidateNodes();
}

} // namespace OrvCameraApi
