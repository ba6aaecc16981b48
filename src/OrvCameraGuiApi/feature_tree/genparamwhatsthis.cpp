// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>

namespace {

/** One line, or none for a feature that no other selects. */
QStringList selectors(const GenParamFeature &feature)
{
    const GenApi::CSelectorPtr selected(feature.value());
    GenApi::FeatureList_t selecting;
    if (selected.IsValid())
        selected->GetSelectingFeatures(selecting);
    if (selecting.empty())
        return {};
    const QString names = commaSeparated(selecting, [](GenApi::IValue *selector) {
        return fromGenICam(GenApi::CValuePtr(selector)->GetNode()->GetName()).toHtmlEscaped();
    });
    return {GenParamText::tr("<i>Selectors:</i> %1").arg(names)};
}

QString cachingMode(const GenParamFeature &feature)
{
    switch (feature.node()->GetCachingMode()) {
    case GenApi::NoCache:
        return GenParamText::tr("NoCache");
    case GenApi::WriteThrough:
        return GenParamText::tr("WriteThrough");
    case GenApi::WriteAround:
        return GenParamText::tr("WriteAround");
    default:
        return GenParamText::tr("Undefined");
    }
}

} // namespace

void HelpLines::addType(const QString &type)
{
    m_lines += GenParamText::tr("<i>Type:</i> %1").arg(type);
}

QString genParamWhatsThis(const GenParamFeature &feature)
{
    HelpLines help;
    help.add([&] { return GenParamText::tr("<i>Name:</i> %1").arg(feature.name().toHtmlEscaped()); });
    help.add([&] { return selectors(feature); });
    failureOf([&] { FeatureHandler::of(feature).describe(feature, help); });
    help.add([&] {
        return GenParamText::tr("<i>Description:</i> %1")
            .arg(fromGenICam(feature.node()->GetDescription()).toHtmlEscaped());
    });
    help.add([&] {
        return GenParamText::tr("<i>Streamable:</i> %1").arg(GenParamText::truth(feature.node()->IsStreamable()));
    });
    help.add([&] { return GenParamText::tr("<i>Cachable:</i> %1").arg(cachingMode(feature)); });
    return help.text();
}
