// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/widgets/integers.h>

#include <cmath>

GenApi::INode *nodeOf(GenApi::IValue *value)
{
    GenApi::INode *const node = value ? value->GetNode() : nullptr;
    return node ? node : static_cast<GenApi::INode *>(GenApi::CNodePtr());
}

GenApi::INodeMap *nodeMapOf(OrvGenParam::Array *params)
{
    GenApi::INodeMap *nodeMap = nullptr;
    if (params)
        failureOf([&] { nodeMap = params->GetNodeMap(); });
    return nodeMap;
}

/** The cast is for nodes that fail to answer their type: a cast that fails costs much more than asking. */
bool isCategory(GenApi::IValue *value)
{
    bool is = false;
    if (failureOf([&] { is = value && nodeOf(value)->GetPrincipalInterfaceType() == GenApi::intfICategory; }))
        is = dynamic_cast<GenApi::ICategory *>(value);
    return is;
}

bool canRead(GenApi::IValue *feature)
{
    bool can = true;
    failureOf([&] { can = !feature || isReadable(feature->GetAccessMode()); });
    return can;
}

std::optional<qint64> toInteger(const QVariant &value)
{
    bool ok = false;
    qint64 number = 0;
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float: {
        const double real = value.toDouble();
        ok = Integers::fits64(real);
        if (ok)
            number = std::llround(real);
        break;
    }
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        ok = value.toULongLong() <= quint64(Integers::Largest64);
        number = value.toLongLong();
        break;
    default:
        number = value.toLongLong(&ok);
    }
    return ok ? std::make_optional(number) : std::nullopt;
}

GenApi::EInterfaceType GenParamFeature::type() const
{
    return m_value ? node()->GetPrincipalInterfaceType() : GenApi::intfIBase;
}
