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

std::vector<HandledType> allHandlers()
{
    static const CategoryHandler category;
    std::vector<HandledType> all = {{GenApi::intfICategory, &category}};
    for (const auto &family : {numberHandlers(), choiceHandlers(), textHandlers()})
        all.insert(all.end(), family.begin(), family.end());
    return all;
}

} // namespace

const FeatureHandler &FeatureHandler::of(GenApi::EInterfaceType type)
{
    static const DefaultHandler fallback;
    static const std::vector<HandledType> all = allHandlers();
    const auto found =
        std::find_if(all.begin(), all.end(), [type](const HandledType &row) { return row.type == type; });
    return found == all.end() ? fallback : *found->handler;
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
