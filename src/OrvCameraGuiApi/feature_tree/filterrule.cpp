#include <OrvCameraGuiApi/feature_tree/filterrule.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

bool FilterRule::accepts(GenApi::INode *node) const
{
    if (!node)
        return true;
    const OpenCalls::Call call;
    bool isTooHigh = false;
    failureOf([&] { isTooHigh = int(node->GetVisibility()) > level; });
    if (isTooHigh || !acceptsName(*node))
        return false;
    bool isImplemented = true;
    failureOf([&] { isImplemented = node->GetAccessMode() != GenApi::NI; });
    return isImplemented;
}

bool FilterRule::acceptsName(GenApi::INode &node) const
{
    if (pattern.pattern().isEmpty() || (!wholeWords && pattern.matchesAll()))
        return true;
    bool accepted = true;
    failureOf([&] {
        if (node.GetPrincipalInterfaceType() == GenApi::intfICategory)
            return;
        const auto matches = [this](const GenICam::gcstring &text) {
            const QString name = fromGenICam(text);
            return wholeWords ? pattern.isAll(name) : pattern.isIn(name);
        };
        accepted = matches(node.GetDisplayName()) || (matchesNodeNames && matches(node.GetName()));
    });
    return accepted;
}
