// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "callbacklist.h"

namespace GENAPI_NAMESPACE {

CallbackList::~CallbackList()
{
    while (m_first) {
        CNodeCallback *const callback = m_first;
        m_first = callback->m_next;
        callback->Destroy();
    }
}

std::size_t CallbackList::size() const
{
    std::size_t count = 0;
    forEach([&count](const CNodeCallback *) { ++count; });
    return count;
}

bool CallbackList::contains(const CNodeCallback *callback) const
{
    for (const CNodeCallback *each = m_first; each; each = each->m_next) {
        if (each == callback)
            return true;
    }
    return false;
}

void CallbackList::append(CNodeCallback *callback)
{
    CNodeCallback **end = &m_first;
    while (*end)
        end = &(*end)->m_next;
    callback->m_next = nullptr;
    *end = callback;
}

bool CallbackList::remove(CNodeCallback *callback)
{
    for (CNodeCallback **link = &m_first; *link; link = &(*link)->m_next) {
        if (*link == callback) {
            *link = callback->m_next;
            callback->m_next = nullptr;
            return true;
        }
    }
    return false;
}

} // namespace GENAPI_NAMESPACE
