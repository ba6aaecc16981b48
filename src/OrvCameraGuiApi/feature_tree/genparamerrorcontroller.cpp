// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>

bool GenParamErrorController::SetError(const QString &name, const QString &message, int role)
{
    QMap<int, QString> &messages = m_errors[name];
    if (messages.contains(role))
        return false;
    messages.insert(role, message);
    return true;
}

bool GenParamErrorController::ClearError(const QString &name, int role)
{
    const auto feature = m_errors.find(name);
    if (feature == m_errors.end() || feature->remove(role) == 0)
        return false;
    if (feature->isEmpty())
        m_errors.erase(feature);
    return true;
}

QString GenParamErrorController::GetErrorInfo() const
{
    QString info;
    for (auto feature = m_errors.cbegin(); feature != m_errors.cend(); ++feature) {
        for (auto error = feature->cbegin(); error != feature->cend(); ++error) {
            // One call of arg(): a message may itself hold what looks like a place marker.
            info +=
                QStringLiteral("{%1}{id:%3}: %2 \n").arg(feature.key(), error.value(), QString::number(error.key()));
        }
    }
    return info;
}

QString GenParamErrorController::firstMessage(const QString &name) const
{
    const auto feature = m_errors.constFind(name);
    return feature == m_errors.cend() ? QString() : feature->first();
}
