// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>

#include <algorithm>

namespace {

class DefaultHandler final : public FeatureHandler
{
};

class CategoryHandler final : public FeatureHandler
{
public:
    bool hasValue() const override { return false; }
};

const CategoryHandler category;
const DefaultHandler fallback;

/** By the numbers of the types: values are read at every repaint, so finding a handler must cost next to nothing. */
std::vector<const FeatureHandler *> allHandlers()
{
    std::vector<const FeatureHandler *> all;
    for (const auto &family : {numberHandlers(), choiceHandlers(), textHandlers(),
                               std::vector<HandledType>{{GenApi::intfICategory, &category}}}) {
        for (const HandledType &row : family) {
            all.resize(std::max(all.size(), size_t(row.type) + 1), &fallback);
            all[size_t(row.type)] = row.handler;
        }
    }
    return all;
}

} // namespace

const FeatureHandler &FeatureHandler::of(GenApi::EInterfaceType type)
{
    static const std::vector<const FeatureHandler *> all = allHandlers();
    const auto number = size_t(type);
    return number < all.size() ? *all[number] : fallback;
}

const FeatureHandler &FeatureHandler::of(GenApi::IValue *value)
{
    GenApi::EInterfaceType type = GenApi::intfIBase;
    failureOf([&] { type = nodeOf(value)->GetPrincipalInterfaceType(); });
    return of(type);
}

QVariant FeatureHandler::text(const GenParamFeature &) const
{
    return {};
}

QVariant FeatureHandler::editValue(const GenParamFeature &) const
{
    return {};
}

bool FeatureHandler::write(const GenParamFeature &, const QVariant &) const
{
    return false;
}

QVariant FeatureHandler::valueAtSpace(const QVariant &) const
{
    return {};
}

ControlData FeatureHandler::createEditor(const GenParamFeature &) const
{
    return {};
}

void FeatureHandler::refineEditor(QWidget &, GenApi::IValue &) const { }

void FeatureHandler::describe(const GenParamFeature &, HelpLines &) const { }
