#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>

#include <QStringList>

namespace {

QString yesOrNo(bool value)
{
    return value ? GenParamText::tr("True") : GenParamText::tr("False");
}

/** The values of a list, each as \a format makes it. */
template <typename List, typename Format>
QString joined(const List &values, Format format)
{
    QStringList texts;
    for (size_t i = 0; i < values.size(); ++i)
        texts += format(values[i]);
    return texts.join(QLatin1Char(','));
}

QString limits(const QString &minimum, const QString &maximum)
{
    return GenParamText::tr("<i>Limits</i>: Min: %1, Max: %2").arg(minimum, maximum);
}

/** The text put together line by line. */
class WhatsThis
{
public:
    explicit WhatsThis(const GenParamFeature &feature)
        : m_feature(feature)
    {
    }

    QString text();

private:
    template <typename Line>
    void add(Line line)
    {
        failureOf([&] { m_lines += line(); });
    }

    QStringList selectors() const;
    void addTypeAndValues();
    void addInteger();
    void addFloat();
    QStringList enumerationEntries() const;
    QString cachingMode() const;

    const GenParamFeature &m_feature;
    QStringList m_lines;
};

QString WhatsThis::text()
{
    m_lines += GenParamText::tr("<i>Name:</i> %1").arg(m_feature.name().toHtmlEscaped());
    add([this] { return selectors(); });
    failureOf([this] { addTypeAndValues(); });
    add([this] {
        return GenParamText::tr("<i>Description:</i> %1")
            .arg(fromGenICam(m_feature.node()->GetDescription()).toHtmlEscaped());
    });
    add([this] { return GenParamText::tr("<i>Streamable:</i> %1").arg(yesOrNo(m_feature.node()->IsStreamable())); });
    add([this] { return GenParamText::tr("<i>Cachable:</i> %1").arg(cachingMode()); });
    return m_lines.join(QLatin1String("<br />"));
}

/** One line, or none for a feature that no other selects. */
QStringList WhatsThis::selectors() const
{
    const GenApi::CSelectorPtr selected(m_feature.value());
    GenApi::FeatureList_t selecting;
    if (selected.IsValid())
        selected->GetSelectingFeatures(selecting);
    if (selecting.empty())
        return {};
    const QString names = joined(selecting, [](GenApi::IValue *selector) {
        return fromGenICam(GenApi::CValuePtr(selector)->GetNode()->GetName()).toHtmlEscaped();
    });
    return {GenParamText::tr("<i>Selectors:</i> %1").arg(names)};
}

void WhatsThis::addTypeAndValues()
{
    const auto addType = [this](const QString &type) { m_lines += GenParamText::tr("<i>Type:</i> %1").arg(type); };
    switch (m_feature.type()) {
    case GenApi::intfIInteger:
        addType(GenParamText::tr("Integer"));
        addInteger();
        break;
    case GenApi::intfIBoolean:
        addType(GenParamText::tr("Boolean"));
        break;
    case GenApi::intfICommand:
        addType(GenParamText::tr("Command"));
        break;
    case GenApi::intfIFloat:
        addType(GenParamText::tr("Float"));
        addFloat();
        break;
    case GenApi::intfIString:
        addType(GenParamText::tr("String"));
        break;
    case GenApi::intfIEnumeration:
        addType(GenParamText::tr("Enumeration"));
        add([this] { return enumerationEntries(); });
        break;
    default:
        break;
    }
}

void WhatsThis::addInteger()
{
    const GenApi::CIntegerPtr number(m_feature.value());
    add([&] { return limits(QString::number(number->GetMin()), QString::number(number->GetMax())); });
    add([&]() -> QStringList {
        switch (number->GetIncMode()) {
        case GenApi::fixedIncrement:
            return {GenParamText::tr("<i>Increment</i>: %1").arg(number->GetInc())};
        case GenApi::listIncrement: {
            const int base = m_feature.representation(*number) == GenApi::HexNumber ? 16 : 10;
            const auto format = [base](int64_t value) { return QString::number(value, base); };
            return {GenParamText::tr("<i>Valid values</i>: %1").arg(joined(number->GetListOfValidValues(), format))};
        }
        default:
            return {};
        }
    });
}

void WhatsThis::addFloat()
{
    const GenApi::CFloatPtr number(m_feature.value());
    const auto general = [&](double value) { return QString::number(value, 'g', displayPrecision(*number)); };
    add([&] { return limits(general(number->GetMin()), general(number->GetMax())); });
    add([&]() -> QStringList {
        switch (number->GetIncMode()) {
        case GenApi::fixedIncrement:
            return {GenParamText::tr("<i>Increment</i>: %1").arg(general(number->GetInc()))};
        case GenApi::listIncrement: {
            const auto format = [](double value) { return QString::number(value, 'g', 6); };
            return {GenParamText::tr("<i>Valid values</i>: %1").arg(joined(number->GetListOfValidValues(), format))};
        }
        default:
            return {};
        }
    });
}

QStringList WhatsThis::enumerationEntries() const
{
    GenApi::NodeList_t entries;
    GenApi::CEnumerationPtr(m_feature.value())->GetEntries(entries);
    QStringList lines = {GenParamText::tr("<i>Enumeration entries</i>:")};
    for (size_t i = 0; i < entries.size(); ++i) {
        const GenApi::CEnumEntryPtr entry(entries[i]);
        if (!entry.IsValid())
            continue;
        failureOf([&] {
            const qint64 value = entry->GetValue();
            lines += QStringLiteral("\"%1\": %2 (0x%3)")
                         .arg(fromGenICam(entry->GetSymbolic()).toHtmlEscaped(), QString::number(value),
                              QStringLiteral("%1").arg(value, 8, 16, QLatin1Char('0')));
        });
    }
    return lines;
}

QString WhatsThis::cachingMode() const
{
    switch (m_feature.node()->GetCachingMode()) {
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

QString genParamWhatsThis(const GenParamFeature &feature)
{
    return WhatsThis(feature).text();
}
