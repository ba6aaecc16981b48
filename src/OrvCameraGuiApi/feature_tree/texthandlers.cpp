// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>

#include <OrvCameraGuiApi/feature_tree/framelesseditor.h>
#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>

#include <QLineEdit>

namespace {

class StringHandler final : public FeatureHandler
{
public:
    QVariant text(const GenParamFeature &feature) const override
    {
        return fromGenICam(GenApi::CStringPtr(feature.value())->GetValue());
    }

    QVariant editValue(const GenParamFeature &feature) const override { return text(feature); }

    bool write(const GenParamFeature &feature, const QVariant &value) const override
    {
        if (!value.isValid() || !value.canConvert<QString>())
            return false;
        GenApi::CStringPtr(feature.value())->SetValue(value.toString().toUtf8().constData(), true);
        return true;
    }

    ControlData createEditor(const GenParamFeature &) const override
    {
        return {makeFrameless<QLineEdit>().release(), ControlData::LineEdit};
    }

    void describe(const GenParamFeature &, HelpLines &help) const override { help.addType(GenParamText::tr("String")); }
};

/** A register has no text, and so the view's own editor; nothing that is typed there could be written. */
class RegisterHandler final : public FeatureHandler
{
public:
    void refineEditor(QWidget &editor, GenApi::IValue &) const override
    {
        if (auto *const field = qobject_cast<QLineEdit *>(&editor))
            field->setReadOnly(true);
    }
};

} // namespace

std::vector<HandledType> textHandlers()
{
    static const StringHandler string;
    static const RegisterHandler bytes;
    return {{GenApi::intfIString, &string}, {GenApi::intfIRegister, &bytes}};
}
