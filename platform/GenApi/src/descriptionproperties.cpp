// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "descriptionloader.h"

#include <cstring>
#include <unordered_map>

namespace OrvGenApi {

using namespace GenApi;

namespace {

template <typename Value>
using Names = std::unordered_map<std::string_view, Value>;

/** The value a word stands for; nothing for a word that is not in the table. */
template <typename Value>
std::optional<Value> lookUp(const Names<Value> &names, std::string_view word)
{
    const auto found = names.find(trimmed(word));
    if (found == names.end())
        return std::nullopt;
    return found->second;
}

const Names<EAccessMode> accessModes = {{"RO", RO}, {"WO", WO}, {"RW", RW}, {"NA", NA}, {"NI", NI}};
const Names<EVisibility> visibilities = {
    {"Beginner", Beginner}, {"Expert", Expert}, {"Guru", Guru}, {"Invisible", Invisible}};
const Names<ECachingMode> cachingModes = {
    {"NoCache", NoCache}, {"WriteThrough", WriteThrough}, {"WriteAround", WriteAround}};
const Names<ERepresentation> representations = {
    {"Linear", Linear},       {"Logarithmic", Logarithmic}, {"Boolean", GenApi::Boolean}, {"PureNumber", PureNumber},
    {"HexNumber", HexNumber}, {"IPV4Address", IPV4Address}, {"MACAddress", MACAddress},
};
const Names<EDisplayNotation> notations = {
    {"Automatic", fnAutomatic}, {"Fixed", fnFixed}, {"Scientific", fnScientific}};

bool is(const pugi::xml_node &property, const char *name)
{
    const char *const own = property.name();
    return *own == *name && std::strcmp(own, name) == 0; // most differ at once
}

} // namespace

Node *DescriptionLoader::link(Node &owner, const Element &property, Use use)
{
    return linkTo(owner, property, textOf(property), use);
}

Node *DescriptionLoader::linkTo(Node &owner, const Element &property, std::string_view name, Use use)
{
    Node *const node = m_map.find(trimmed(name));
    if (!node) {
        owner.setBroken(m_map.keep(std::string(property.name()) + " refers to '" + std::string(trimmed(name))
                                   + "', which does not exist"));
        return nullptr;
    }
    node->addDependent(owner);
    m_edges.push_back({owner.m_index, node->m_index, use});
    return node;
}

Node *DescriptionLoader::linkNumber(Node &owner, const Element &property, Use use)
{
    Node *const node = link(owner, property, use);
    if (!node || node->isNumber())
        return node;
    owner.setBroken(m_map.keep(std::string(property.name()) + " refers to '" + node->name() + "', which is no number"));
    return nullptr;
}

template <typename Number>
void DescriptionLoader::linkNumber(NumberRef<Number> &reference, Node &owner, const Element &property, Use use)
{
    if (Node *const node = linkNumber(owner, property, use))
        reference.setNode(node);
}

std::string_view DescriptionLoader::textOf(const Element &property)
{
    const char *first = nullptr;
    std::string *joined = nullptr;
    for (const Element &part : property.children()) {
        if (part.type() != pugi::node_pcdata && part.type() != pugi::node_cdata)
            continue;
        if (first && !joined)
            joined = &m_joinedTexts.emplace_back(first);
        if (joined)
            *joined += part.value();
        else
            first = part.value();
    }
    return joined ? std::string_view(*joined) : first ? std::string_view(first) : std::string_view();
}

void DescriptionLoader::readNumber(int64_t &value, const Element &property)
{
    const std::optional<int64_t> number = parseInteger(textOf(property));
    if (!number)
        fail(property, std::string(property.name()) + ": '" + std::string(textOf(property)) + "' is no integer");
    value = *number;
}

void DescriptionLoader::readNumber(double &value, const Element &property)
{
    const std::optional<double> number = parseFloat(textOf(property));
    if (!number)
        fail(property, std::string(property.name()) + ": '" + std::string(textOf(property)) + "' is no number");
    value = *number;
}

int64_t DescriptionLoader::integer(const Element &property)
{
    int64_t value = 0;
    readNumber(value, property);
    return value;
}

double DescriptionLoader::number(const Element &property)
{
    double value = 0;
    readNumber(value, property);
    return value;
}

bool DescriptionLoader::isYes(const Element &property)
{
    const std::string_view text = trimmed(textOf(property));
    return text == "Yes" || text == "true" || text == "1";
}

bool DescriptionLoader::readCommon(Node &node, const Element &property)
{
    const std::string_view text = textOf(property);
    if (is(property, "ToolTip"))
        node.m_toolTip = m_map.keep(text);
    else if (is(property, "Description"))
        // Many descriptions say the same in both places.
        node.m_description = text == node.m_toolTip ? node.m_toolTip : m_map.keep(text);
    else if (is(property, "DisplayName"))
        node.m_displayName = m_map.keep(text);
    else if (is(property, "Visibility"))
        node.m_visibility = lookUp(visibilities, text).value_or(Beginner);
    else if (is(property, "Streamable"))
        node.m_streamable = isYes(property);
    else if (is(property, "ImposedAccessMode"))
        node.m_imposedAccess = lookUp(accessModes, text).value_or(RW);
    else if (is(property, "PollingTime"))
        node.m_pollingTime = integer(property);
    else if (is(property, "pIsImplemented"))
        node.ownConditions().isImplemented = linkNumber(node, property, Use::Condition);
    else if (is(property, "pIsAvailable"))
        node.ownConditions().isAvailable = linkNumber(node, property, Use::Condition);
    else if (is(property, "pIsLocked"))
        node.ownConditions().isLocked = linkNumber(node, property, Use::Condition);
    else if (is(property, "pBlockPolling")) {
        node.ownConditions().blocksPolling = linkNumber(node, property, Use::Condition);
    } else if (is(property, "DocuURL"))
        m_map.m_extras[&node].docuUrl = m_map.keep(text);
    else if (is(property, "EventID"))
        m_map.m_extras[&node].eventId = m_map.keep(text);
    else if (is(property, "IsDeprecated"))
        m_map.m_extras[&node].isDeprecated = isYes(property);
    else if (is(property, "pAlias"))
        m_map.m_extras[&node].alias = m_map.find(trimmed(text));
    else if (is(property, "pCastAlias"))
        m_map.m_extras[&node].castAlias = m_map.find(trimmed(text));
    else if (is(property, "pError")) {
        node.ownConditions().error = linkNumber(node, property, Use::Condition);
    } else if (is(property, "pInvalidator"))
        link(node, property, Use::Notice);
    else if (is(property, "pSelected")) {
        if (Node *const selected = m_map.find(trimmed(text)))
            node.addSelected(*selected);
    } else
        return false;
    return true;
}

bool DescriptionLoader::readPresentation(Presentation &presentation, const Element &property)
{
    const std::string_view text = textOf(property);
    if (is(property, "Unit"))
        presentation.unit = m_map.keep(text);
    else if (is(property, "Representation"))
        presentation.representation = lookUp(representations, text).value_or(_UndefinedRepresentation);
    else if (is(property, "DisplayNotation"))
        presentation.notation = lookUp(notations, text).value_or(_UndefinedEDisplayNotation);
    else if (is(property, "DisplayPrecision"))
        presentation.precision = std::max<int64_t>(integer(property), 0);
    else
        return false;
    return true;
}

bool DescriptionLoader::readRegister(Node &node, RegisterData &data, const Element &property)
{
    if (is(property, "Address")) {
        data.m_addressTerms.emplace_back().value.setConstant(integer(property));
    } else if (is(property, "pAddress")) {
        linkNumber(data.m_addressTerms.emplace_back().value, node, property, Use::Value);
    } else if (is(property, "IntSwissKnife")) {
        readAddressKnife(node, data, property);
    } else if (is(property, "pIndex")) {
        RegisterData::AddressTerm &term = data.m_addressTerms.emplace_back();
        term.isIndex = true;
        linkNumber(term.value, node, property, Use::Value);
        if (const pugi::xml_attribute offset = property.attribute("Offset")) {
            const std::optional<int64_t> value = parseInteger(std::string_view(offset.value()));
            if (!value)
                fail(property, std::string("Offset: '") + offset.value() + "' is no integer");
            term.offset.setConstant(*value);
        } else if (const pugi::xml_attribute offsetNode = property.attribute("pOffset")) {
            Node *const target = linkTo(node, property, offsetNode.value(), Use::Value);
            if (target && target->isNumber())
                term.offset.setNode(target);
            else if (target)
                node.setBroken("its pOffset is no number");
        }
    } else if (is(property, "Length")) {
        data.m_length.setConstant(integer(property));
    } else if (is(property, "pLength")) {
        linkNumber(data.m_length, node, property, Use::Condition);
    } else if (is(property, "AccessMode")) {
        data.m_accessMode = lookUp(accessModes, textOf(property)).value_or(RO);
    } else if (is(property, "Cachable")) {
        data.m_cachable = lookUp(cachingModes, textOf(property)).value_or(WriteThrough);
    } else if (is(property, "Endianess")) {
        data.m_bigEndian = trimmed(textOf(property)) == "BigEndian";
    } else if (is(property, "pPort")) {
        data.m_port = dynamic_cast<PortNode *>(link(node, property, Use::Condition));
        if (!data.m_port && !node.isBroken())
            node.setBroken("its pPort is no port");
    } else {
        return false;
    }
    return true;
}

void DescriptionLoader::readAddressKnife(Node &node, RegisterData &data, const Element &element)
{
    // A formula that stands in the register itself is a node like others, under a name that nothing else has.
    std::string name = element.attribute("Name").value();
    for (int number = 1; name.empty() || m_map.find(name); ++number)
        name = std::string(node.name()) + "_Address" + std::to_string(number);
    SwissKnifeNode<IntegerFormulaBase> &knife = createKnife(element, name); // read in its turn
    knife.addDependent(node);
    m_edges.push_back({node.m_index, knife.m_index, Use::Value});
    data.m_addressTerms.emplace_back().value.setNode(&knife);
}

template <typename Number>
NumberRef<Number> &DescriptionLoader::itemOf(NumberSource<Number> &source, const Element &property)
{
    const char *const text = property.attribute("Index").value();
    const std::optional<int64_t> index = parseInteger(std::string_view(text));
    if (!index)
        fail(property, std::string("Index: '") + text + "' is no integer");
    return source.indexed().items.emplace_back(typename NumberSource<Number>::Item{*index, {}}).value;
}

/** False when \a property has nothing to do with where the number has its value. */
template <typename Number>
bool DescriptionLoader::readSource(NumberSource<Number> &source, Node &node, const Element &property)
{
    const auto setConstant = [&](NumberRef<Number> &reference) {
        Number value = 0;
        readNumber(value, property);
        reference.setConstant(value);
    };
    if (is(property, "Value"))
        setConstant(source.m_value);
    else if (is(property, "pValue"))
        linkNumber(source.m_value, node, property, Use::Value);
    else if (is(property, "pValueCopy")) {
        if (Node *const copy = linkNumber(node, property, Use::Value)) {
            if (!source.m_copies)
                source.m_copies = std::make_unique<typename NumberSource<Number>::Copies>();
            source.m_copies->nodes.push_back(copy);
        }
    } else if (is(property, "pIndex"))
        source.indexed().index = linkNumber(node, property, Use::Value);
    else if (is(property, "ValueIndexed"))
        setConstant(itemOf(source, property));
    else if (is(property, "pValueIndexed"))
        linkNumber(itemOf(source, property), node, property, Use::Value);
    else if (is(property, "ValueDefault"))
        setConstant(source.indexed().fallback);
    else if (is(property, "pValueDefault"))
        linkNumber(source.indexed().fallback, node, property, Use::Value);
    else
        return false;
    return true;
}

template <typename NumberNode>
bool DescriptionLoader::readNumberProperty(NumberNode &node, const Element &property)
{
    if (readCommon(node, property) || readPresentation(node.m_presentation, property)
        || readSource(node.m_source, node, property))
        return true;
    const bool isLink = *property.name() == 'p';
    const std::string_view name = property.name() + (isLink ? 1 : 0);
    auto *const limit = name == "Min" ? &node.m_minimum
        : name == "Max"               ? &node.m_maximum
        : name == "Inc"               ? &node.m_increment
                                      : nullptr;
    if (!limit)
        return false;
    if (isLink) {
        linkNumber(*limit, node, property, Use::Condition);
    } else {
        auto value = limit->constant();
        readNumber(value, property);
        limit->setConstant(value);
    }
    return true;
}

void DescriptionLoader::read(IntegerNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (!readNumberProperty(node, property) && is(property, "ValidValueSet"))
            readValidValues(node, property);
    }
    if (!node.m_source.isComplete() && !node.isBroken())
        node.setBroken("it has no value");
}

void DescriptionLoader::readValidValues(IntegerNode &node, const Element &property)
{
    node.m_validValues = std::make_unique<std::vector<int64_t>>();
    std::string_view rest = textOf(property);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        const std::string_view word = trimmed(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (word.empty())
            continue;
        const std::optional<int64_t> value = parseInteger(word);
        if (!value)
            fail(property, "ValidValueSet: '" + std::string(word) + "' is no integer");
        node.m_validValues->push_back(*value);
    }
    std::sort(node.m_validValues->begin(), node.m_validValues->end());
}

void DescriptionLoader::read(FloatNode &node, const Source &source)
{
    node.setCachingMode(WriteAround);
    for (const Element &property : source.element.children())
        readNumberProperty(node, property);
    if (!node.m_source.isComplete() && !node.isBroken())
        node.setBroken("it has no value");
}

void DescriptionLoader::read(IntRegisterNode &node, const Source &source)
{
    const auto readAll = [&](const Element &element) {
        for (const Element &property : element.children()) {
            if (readCommon(node, property) || readPresentation(node.m_presentation, property)
                || readRegister(node, node.m_register, property))
                continue;
            if (is(property, "Sign")) {
                node.m_signed = trimmed(textOf(property)) == "Signed";
                continue;
            }
            const bool bit = is(property, "Bit");
            if (!bit && !is(property, "LSB") && !is(property, "MSB"))
                continue;
            const int64_t position = integer(property);
            if (position < 0 || position > 63)
                fail(property, "there is no bit " + std::to_string(position));
            if (bit || is(property, "LSB"))
                node.m_lsb = static_cast<int16_t>(position);
            if (bit || is(property, "MSB"))
                node.m_msb = static_cast<int16_t>(position);
        }
    };
    if (source.common)
        readAll(source.common);
    readAll(source.element);
    if ((node.m_lsb < 0) != (node.m_msb < 0))
        fail(source.element, std::string("node '") + node.name() + "' has only one of LSB and MSB");
    node.setCachingMode(node.m_register.m_cachable);
}

void DescriptionLoader::read(FloatRegisterNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (!readCommon(node, property) && !readPresentation(node.m_presentation, property))
            readRegister(node, node.m_register, property);
    }
    node.setCachingMode(source.element.child("Cachable") ? node.m_register.m_cachable : WriteAround);
}

template <typename T>
void DescriptionLoader::readPlainRegister(T &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (!readCommon(node, property))
            readRegister(node, node.m_register, property);
    }
    node.setCachingMode(node.m_register.m_cachable);
}

void DescriptionLoader::read(StringRegisterNode &node, const Source &source)
{
    readPlainRegister(node, source);
}

void DescriptionLoader::read(RegisterNode &node, const Source &source)
{
    readPlainRegister(node, source);
}

FormulaScope DescriptionLoader::scopeOf(Node &node, std::vector<FormulaVariable> &variables, const Element &element)
{
    FormulaScope scope;
    for (const Element &property : element.children()) {
        const std::string_view name = property.attribute("Name").value();
        if (is(property, "pVariable")) {
            readVariable(node, variables, property);
            scope.variables.push_back(name);
        } else if (is(property, "Constant")) {
            scope.constants.emplace_back(name, textOf(property));
        } else if (is(property, "Expression")) {
            scope.expressions.emplace_back(name, textOf(property));
        }
    }
    return scope;
}

void DescriptionLoader::readVariable(Node &node, std::vector<FormulaVariable> &variables, const Element &property)
{
    using Property = FormulaVariable::Property;
    static const Names<Property> properties = {{"Value", Property::Value}, {"Min", Property::Minimum},
                                               {"Max", Property::Maximum}, {"Inc", Property::Increment},
                                               {"Enum", Property::Entry},  {"Entry", Property::Entry}};
    FormulaVariable &variable = variables.emplace_back();
    std::string_view suffix = property.attribute("Name").value();
    suffix.remove_prefix(std::min(suffix.find('.'), suffix.size()));
    if (!suffix.empty()) {
        suffix.remove_prefix(1);
        const std::size_t end = std::min(suffix.find('.'), suffix.size());
        const std::optional<Property> meant = lookUp(properties, suffix.substr(0, end));
        if (!meant)
            fail(property, "no such property of a variable: '" + std::string(suffix) + "'");
        variable.property = *meant;
        if (variable.property == Property::Entry)
            variable.entry = m_map.keep(suffix.substr(std::min(end + 1, suffix.size())));
    }
    variable.node = linkNumber(node, property, Use::Variable);
}

Formula DescriptionLoader::formula(const Element &property, FormulaScope scope, const char *converted,
                                   Formula::Kind kind)
{
    if (converted)
        scope.variables.push_back(converted);
    try {
        return Formula::parse(textOf(property), scope, kind);
    } catch (const FormulaError &error) {
        // A concern of the node that has the formula, and of those who ask it.
        return Formula::unusable(std::string(property.name()) + ": " + error.message);
    }
}

template <typename Base>
void DescriptionLoader::read(SwissKnifeNode<Base> &node, const Source &source)
{
    if (Base::kind == Formula::Kind::Float)
        node.setCachingMode(WriteAround);
    for (const Element &property : source.element.children()) {
        if (!readCommon(node, property))
            readPresentation(node.m_presentation, property);
    }
    const FormulaScope scope = scopeOf(node, node.m_variables, source.element);
    if (const Element property = source.element.child("Formula"))
        node.m_formula = formula(property, scope, nullptr, Base::kind);
    else
        fail(source.element, std::string("node '") + node.name() + "' has no formula");
}

template void DescriptionLoader::read(SwissKnifeNode<FloatFormulaBase> &node, const Source &source);
template void DescriptionLoader::read(SwissKnifeNode<IntegerFormulaBase> &node, const Source &source);

template <typename Base>
void DescriptionLoader::read(ConverterNode<Base> &node, const Source &source)
{
    using Slope = typename ConverterNode<Base>::Slope;
    static const Names<Slope> slopes = {{"Increasing", Slope::Increasing},
                                        {"Decreasing", Slope::Decreasing},
                                        {"Varying", Slope::Varying},
                                        {"Automatic", Slope::Automatic}};
    node.setCachingMode(WriteAround);
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property) || readPresentation(node.m_presentation, property))
            continue;
        if (is(property, "pValue"))
            node.m_node = linkNumber(node, property, Use::Value);
        else if (is(property, "Slope"))
            node.m_slope = lookUp(slopes, textOf(property)).value_or(Slope::Automatic);
    }
    const FormulaScope scope = scopeOf(node, node.m_variables, source.element);
    const Element to = source.element.child("FormulaTo");
    const Element from = source.element.child("FormulaFrom");
    if (!to || !from)
        fail(source.element, std::string("node '") + node.name() + "' needs a FormulaTo and a FormulaFrom");
    node.m_formulaTo = formula(to, scope, "FROM", Base::kind);
    node.m_formulaFrom = formula(from, scope, "TO", Base::kind);
    if (!node.m_node && !node.isBroken())
        node.setBroken("it has no pValue");
}

template void DescriptionLoader::read(ConverterNode<FloatFormulaBase> &node, const Source &source);
template void DescriptionLoader::read(ConverterNode<IntegerFormulaBase> &node, const Source &source);

void DescriptionLoader::read(StringNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "Value"))
            node.m_text = textOf(property);
        else if (is(property, "pValue")) {
            node.m_node = link(node, property, Use::Value);
            if (node.m_node && (!node.m_node->asValue() || node.m_node->interfaceType() == intfICategory)) {
                node.m_node = nullptr;
                node.setBroken("its pValue has no text");
            }
        }
    }
}

void DescriptionLoader::read(BooleanNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "Value")) {
            const std::string_view word = trimmed(textOf(property));
            node.m_value.setConstant(word == "true" ? 1 : word == "false" ? 0 : integer(property));
        } else if (is(property, "pValue"))
            linkNumber(node.m_value, node, property, Use::Value);
        else if (is(property, "OnValue"))
            node.m_onValue = integer(property);
        else if (is(property, "OffValue"))
            node.m_offValue = integer(property);
    }
    if (node.m_value.isSet() && !node.m_value.node()) // is kept as a truth value
        node.m_value.setConstant(node.m_value.constant() != 0 && node.m_value.constant() == node.m_onValue);
    if (node.m_onValue == node.m_offValue)
        fail(source.element, std::string("boolean '") + node.name() + "' has the same on and off value");
    if (!node.m_value.isSet() && !node.isBroken())
        node.setBroken("it has no value");
}

void DescriptionLoader::read(CommandNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "Value"))
            node.m_value.setConstant(integer(property));
        else if (is(property, "pValue"))
            linkNumber(node.m_value, node, property, Use::Value);
        else if (is(property, "CommandValue"))
            node.m_commandValue.setConstant(integer(property));
        else if (is(property, "pCommandValue"))
            linkNumber(node.m_commandValue, node, property, Use::Condition);
    }
    if ((!node.m_value.isSet() || !node.m_commandValue.isSet()) && !node.isBroken())
        node.setBroken("it has no value or no command value");
}

void DescriptionLoader::read(EnumerationNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "Value"))
            node.m_value.setConstant(integer(property));
        else if (is(property, "pValue"))
            linkNumber(node.m_value, node, property, Use::Value);
    }
    // Its entries were created right behind it.
    for (std::size_t i = node.m_index + 1; i < m_sources.size() && m_sources[i].element.parent() == source.element;
         ++i) {
        const auto entry = static_cast<EnumEntryNode *>(m_sources[i].node);
        node.m_entries.push_back(entry);
        if (isYes(m_sources[i].element.child("IsSelfClearing")))
            node.m_hasSelfClearing = true;
        entry->addDependent(node);
        m_edges.push_back({node.m_index, entry->m_index, Use::Notice}); // what an entry hangs on may hang on the choice
    }
    node.m_entries.shrink_to_fit();
    if (!node.m_value.isSet() && !node.isBroken())
        node.setBroken("it has no value");
}

void DescriptionLoader::read(EnumEntryNode &node, const Source &source)
{
    bool hasValue = false;
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "Value")) {
            node.m_value = integer(property);
            hasValue = true;
        } else if (is(property, "NumericValue"))
            node.m_numericValue = number(property);
        else if (is(property, "Symbolic"))
            node.m_symbolic = m_map.keep(trimmed(textOf(property)));
        else if (is(property, "IsSelfClearing"))
            node.m_selfClearing = isYes(property);
    }
    if (!hasValue)
        fail(source.element, std::string("entry '") + node.m_symbolic + "' has no value");
}

void DescriptionLoader::read(CategoryNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property) || !is(property, "pFeature"))
            continue;
        // A feature that does not exist, or a port, is left out; the others stay.
        Node *const feature = m_map.find(trimmed(textOf(property)));
        if (!feature || feature->interfaceType() == intfIPort)
            continue;
        feature->addDependent(node);
        node.m_features.push_back(feature);
    }
    node.m_features.shrink_to_fit();
}

void DescriptionLoader::read(PlainNode &node, const Source &source)
{
    for (const Element &property : source.element.children())
        readCommon(node, property);
}

void DescriptionLoader::read(PortNode &node, const Source &source)
{
    for (const Element &property : source.element.children()) {
        if (readCommon(node, property))
            continue;
        if (is(property, "SwapEndianess"))
            node.m_swapEndianness = isYes(property);
        else if (is(property, "ChunkID") || is(property, "pChunkID"))
            node.m_isChunk = true;
    }
}

} // namespace OrvGenApi
