// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>

#include <OrvCameraGuiApi/feature_tree/framelesseditor.h>
#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>
#include <OrvCameraGuiApi/widgets/namedcombobox.h>

#include <QPushButton>

namespace {

class BooleanHandler final : public FeatureHandler
{
public:
    QVariant text(const GenParamFeature &feature) const override
    {
        return GenParamText::truth(GenApi::CBooleanPtr(feature.value())->GetValue());
    }

    QVariant editValue(const GenParamFeature &feature) const override
    {
        return GenApi::CBooleanPtr(feature.value())->GetValue();
    }

    bool write(const GenParamFeature &feature, const QVariant &value) const override
    {
        if (!value.isValid() || !value.canConvert<bool>())
            return false;
        GenApi::CBooleanPtr(feature.value())->SetValue(value.toBool());
        return true;
    }

    QVariant valueAtSpace(const QVariant &current) const override
    {
        return current.userType() == QMetaType::Bool ? QVariant(!current.toBool()) : QVariant();
    }

    ControlData createEditor(const GenParamFeature &) const override
    {
        auto box = makeFrameless<NamedComboBox>();
        box->addItem(GenParamText::truth(true), true);
        box->addItem(GenParamText::truth(false), false);
        return {box.release(), ControlData::ComboBox};
    }

    void describe(const GenParamFeature &, HelpLines &help) const override
    {
        help.addType(GenParamText::tr("Boolean"));
    }
};

/** A command can be executed although it cannot be read. */
class CommandHandler final : public FeatureHandler
{
public:
    bool isRead() const override { return false; }

    QVariant text(const GenParamFeature &) const override { return GenParamText::tr("Execute"); }

    bool write(const GenParamFeature &feature, const QVariant &) const override
    {
        GenApi::CCommandPtr(feature.value())->Execute();
        return true;
    }

    QVariant valueAtSpace(const QVariant &) const override { return true; }

    ControlData createEditor(const GenParamFeature &) const override
    {
        auto button = std::make_unique<QPushButton>(GenParamText::tr("Execute"));
        button->setFlat(true);
        // A flat button paints no ground of its own, and the cell's text is the same as the button's.
        button->setAutoFillBackground(true);
        button->setAutoDefault(false);
        return {button.release(), ControlData::PushButton};
    }

    void describe(const GenParamFeature &, HelpLines &help) const override
    {
        help.addType(GenParamText::tr("Command"));
    }
};

/** Calls \a visit with every valid entry of \a feature. */
template <typename Visit>
void forEachEntry(const GenParamFeature &feature, Visit visit)
{
    GenApi::NodeList_t entries;
    GenApi::CEnumerationPtr(feature.value())->GetEntries(entries);
    for (size_t i = 0; i < entries.size(); ++i) {
        const GenApi::CEnumEntryPtr entry(entries[i]);
        if (entry.IsValid())
            visit(*entry);
    }
}

class EnumerationHandler final : public FeatureHandler
{
public:
    QVariant text(const GenParamFeature &feature) const override { return fromGenICam(feature.value()->ToString()); }

    QVariant editValue(const GenParamFeature &feature) const override
    {
        const GenApi::CEnumerationPtr enumeration(feature.value());
        return quint64(GenApi::CEnumEntryPtr(enumeration->GetCurrentEntry())->GetValue());
    }

    bool write(const GenParamFeature &feature, const QVariant &value) const override;
    ControlData createEditor(const GenParamFeature &feature) const override;
    void describe(const GenParamFeature &feature, HelpLines &help) const override;
};

bool EnumerationHandler::write(const GenParamFeature &feature, const QVariant &value) const
{
    const GenApi::CEnumerationPtr enumeration(feature.value());
    if (value.userType() == QMetaType::ULongLong)
        // An entry's integer as the edit value gives it: a negative one comes as a large number.
        enumeration->SetIntValue(static_cast<int64_t>(value.toULongLong()), true);
    else if (const auto number = toInteger(value))
        enumeration->SetIntValue(*number, true);
    else if (value.isValid() && value.canConvert<QString>())
        feature.value()->FromString(value.toString().toUtf8().constData(), true);
    else
        return false;
    return true;
}

ControlData EnumerationHandler::createEditor(const GenParamFeature &feature) const
{
    auto box = makeFrameless<NamedComboBox>();
    forEachEntry(feature, [&](GenApi::IEnumEntry &entry) {
        if (entry.GetAccessMode() > GenApi::NA)
            box->addItem(fromGenICam(entry.GetSymbolic()), qint64(entry.GetValue()));
    });
    return {box.release(), ControlData::ComboBox};
}

void EnumerationHandler::describe(const GenParamFeature &feature, HelpLines &help) const
{
    help.addType(GenParamText::tr("Enumeration"));
    help.add([&] {
        QStringList lines = {GenParamText::tr("<i>Enumeration entries</i>:")};
        forEachEntry(feature, [&](GenApi::IEnumEntry &entry) {
            failureOf([&] {
                const qint64 value = entry.GetValue();
                lines += QStringLiteral("\"%1\": %2 (0x%3)")
                             .arg(fromGenICam(entry.GetSymbolic()).toHtmlEscaped(), QString::number(value),
                                  QStringLiteral("%1").arg(value, 8, 16, QLatin1Char('0')));
            });
        });
        return lines;
    });
}

} // namespace

std::vector<HandledType> choiceHandlers()
{
    static const BooleanHandler boolean;
    static const CommandHandler command;
    static const EnumerationHandler enumeration;
    return {
        {GenApi::intfIBoolean, &boolean}, {GenApi::intfICommand, &command}, {GenApi::intfIEnumeration, &enumeration}};
}
