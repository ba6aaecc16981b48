#include "featurecamera.h"

#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvGenApi/testing/faults.h>

#include "orvtest.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLineEdit>

#include <atomic>
#include <thread>

using OrvGenApi::testing::clearFaults;
using OrvGenApi::testing::failGetter;
using OrvGenApi::testing::registeredCallbacks;

namespace {

constexpr int nameColumn = GenParamTreeModel::NameColumn;
constexpr int valueColumn = GenParamTreeModel::ValueColumn;

/** A model over a camera; goes before it. */
struct FeatureTree : FeatureCamera
{
    explicit FeatureTree(const QByteArray &nodes = allKinds())
        : FeatureCamera(nodes)
        , model(new GenParamTreeModel(map.get(), nullptr))
    {
    }

    QModelIndexList rows() const { return rowsOf(*model); }
    QModelIndex cell(const char *name, int column = valueColumn) const
    {
        return cellOf(*model, map->GetNode(name), column);
    }
    QVariant value(const char *name, int role = Qt::DisplayRole) const { return cell(name).data(role); }

    std::unique_ptr<GenParamTreeModel> model;
};

QStringList itemsOf(const QComboBox &box)
{
    QStringList items;
    for (int i = 0; i < box.count(); ++i)
        items += box.itemText(i) + QLatin1Char(':') + box.itemData(i).toString();
    return items;
}

/** The features whose value cell was reported, in order; a category is told of the features in it, too. */
QStringList changedFeatures(const QSignalSpy &dataChanged)
{
    QStringList names;
    for (const QList<QVariant> &arguments : dataChanged) {
        const auto cell = arguments.first().toModelIndex();
        if (cell == arguments.at(1).toModelIndex() && cell.column() == valueColumn
            && !cell.model()->hasChildren(cell.siblingAtColumn(nameColumn)))
            names += nodeName(cell);
    }
    return names;
}

const QBrush red(QColor(255, 0, 0));

} // namespace

class TestGenParamTreeModel : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheTree();
    void hasNoRowsWithoutFeatures();
    void keepsTheFirstPlaceOfAFeature();
    void endsCategoriesInsideThemselves();
    void boundsNestedCategories();
    void texts();
    void declaredAddressesOverruleNames();
    void names();
    void colorsAndFlags();
    void whatsThis();
    void editors_data();
    void editors();
    void readsOnlyWhatARoleNeeds();
    void reportsAFailedReadOnce();
    void writes_data();
    void writes();
    void listsErrorsInOrder();
    void slotsMayCallBack();
    void queuesChangesOfOtherThreads();
    void dropsChangesWhenItGoes();
    void mayGoInASlot();
};

void TestGenParamTreeModel::showsTheTree()
{
    const FeatureTree tree;
    const QAbstractItemModelTester tester(tree.model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList names;
    const QModelIndexList rows = tree.rows();
    for (const QModelIndex &index : rows)
        names += nodeName(index.parent().isValid() ? index.parent() : index);
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("Numbers Numbers Numbers Numbers Numbers Numbers Numbers Numbers Numbers "
                            "Others Others Others Others Others Others Access Access Access Access"));
    QCOMPARE(tree.cell("Mask").row(), 3);
    QCOMPARE(registeredCallbacks(*tree.map), size_t(rows.size()));
    QCOMPARE(tree.model->headerData(0, Qt::Vertical).toString(), QStringLiteral("Name"));
    QCOMPARE(tree.model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Value"));
    QVERIFY(!tree.model->headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!tree.model->index(3, 0).isValid());
    QVERIFY(!tree.model->index(0, 2).isValid());
}

void TestGenParamTreeModel::hasNoRowsWithoutFeatures()
{
    const GenParamTreeModel withoutMap(static_cast<GenApi::INodeMap *>(nullptr), nullptr);
    const FeatureTree withoutRoot("<Integer Name=\"Width\"><Value>1</Value></Integer>");
    const FeatureTree rootIsNoCategory("<Integer Name=\"Root\"><Value>1</Value></Integer>");
    const GenParamTreeModel *const models[] = {&withoutMap, withoutRoot.model.get(), rootIsNoCategory.model.get()};
    for (const GenParamTreeModel *model : models) {
        QCOMPARE(model->rowCount(), 0);
        QVERIFY(!model->index(0, 0).isValid());
        QVERIFY(!model->data(QModelIndex()).isValid());
        QCOMPARE(model->flags(QModelIndex()), Qt::NoItemFlags);
    }
}

void TestGenParamTreeModel::keepsTheFirstPlaceOfAFeature()
{
    FeatureTree tree(R"(
<Category Name="Root"><pFeature>Left</pFeature><pFeature>Right</pFeature></Category>
<Category Name="Left"><pFeature>Width</pFeature><pFeature>Height</pFeature></Category>
<Category Name="Right"><pFeature>Gain</pFeature><pFeature>Red</pFeature><pFeature>Height</pFeature></Category>
<Category Name="Red"><pFeature>Gamma</pFeature></Category>
<Integer Name="Width"><Value>1</Value></Integer><Integer Name="Height"><Value>2</Value></Integer>
<Integer Name="Gain"><Value>3</Value></Integer><Integer Name="Gamma"><Value>4</Value></Integer>)");
    const QModelIndex left = tree.model->index(0, 0);
    const QModelIndex right = tree.model->index(1, 0);
    const QModelIndex again = tree.model->index(2, nameColumn, right);
    QCOMPARE(nodeName(again), QStringLiteral("Height"));
    QCOMPARE(again.row(), 2);
    QCOMPARE(again.parent(), left);
    QCOMPARE(tree.rows().size(), 8);
    // One callback an occurrence, all of them for the first cell.
    QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
    tree.node<GenApi::CIntegerPtr>("Height")->SetValue(5);
    QCOMPARE(changedFeatures(changed), QStringList({QStringLiteral("Height"), QStringLiteral("Height")}));
    QCOMPARE(changed.first().first().toModelIndex(), tree.model->index(1, valueColumn, left));
}

void TestGenParamTreeModel::endsCategoriesInsideThemselves()
{
    const FeatureTree tree(R"(
<Category Name="Root"><pFeature>Outer</pFeature><pFeature>Twice</pFeature></Category>
<Category Name="Outer"><pFeature>Inner</pFeature><pFeature>Twice</pFeature></Category>
<Category Name="Inner"><pFeature>Outer</pFeature><pFeature>Root</pFeature><pFeature>Inner</pFeature></Category>
<Category Name="Twice"><pFeature>Width</pFeature></Category>
<Integer Name="Width"><Value>1</Value></Integer>)");
    QStringList names;
    const QModelIndexList rows = tree.rows();
    for (const QModelIndex &index : rows)
        names += nodeName(index);
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("Outer Inner Outer Root Inner Twice Width Twice Width"));
}

/** Without bounds a stack would be too small for it, and no memory large enough. */
void TestGenParamTreeModel::boundsNestedCategories()
{
    QByteArray nodes = "<Category Name=\"Root\"><pFeature>C0</pFeature></Category>";
    for (int i = 0; i < 5000; ++i) {
        const QByteArray next = "<pFeature>C" + QByteArray::number(i + 1) + "</pFeature>";
        nodes += "<Category Name=\"C" + QByteArray::number(i) + "\">" + next + next + "</Category>";
    }
    const FeatureTree tree(nodes + "<Category Name=\"C5000\"></Category>");
    std::vector<QModelIndex> level = {tree.model->index(0, 0)};
    size_t rows = 0;
    int levels = 0;
    for (; !level.empty(); ++levels) {
        std::vector<QModelIndex> next;
        for (const QModelIndex &index : level) {
            for (int row = 0; row < tree.model->rowCount(index); ++row)
                next.push_back(tree.model->index(row, 0, index));
        }
        rows += level.size();
        level = std::move(next);
    }
    QCOMPARE(levels, 1000);
    QVERIFY(rows > 10000 && rows <= 1000000 + 2 * 1000);
}

void TestGenParamTreeModel::texts()
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"Exposure", "1500", "1500us"},
        {"GevSCDA", "-1", "255.255.255.255"}, // only 32 bits count
        {"GevMACAddress", "0x0001A2B3C4D5", "00:01:A2:B3:C4:D5"},
        {"Mask", "-1", "FFFFFFFFFFFFFFFF"},
        {"Binning", "4", "4px"},
        {"Fraction", "5.5", "5.500000mm"},
        {"Mode", "Continuous", "Continuous"},
        {"Key", nullptr, "<Value not readable>"},
        {"Gone", nullptr, "<Value not available>"},
        {"Blob", nullptr, ""},
        {"Others", nullptr, ""},
    };
    const FeatureTree tree;
    for (const auto &[name, value, text] : rows) {
        if (value)
            tree.node<GenApi::CValuePtr>(name)->FromString(value);
        QCOMPARE(tree.value(name).toString(), QString::fromUtf8(text));
    }
    for (const char *name : {"Start", "Blob", "Others"})
        QVERIFY(!tree.value(name, Qt::EditRole).isValid());
    QCOMPARE(tree.value("Fraction", Qt::EditRole).value<VariantData>().value, QVariant(5.5));
    QCOMPARE(tree.value("Mask", Qt::EditRole), QVariant(qint64(-1)));
}

void TestGenParamTreeModel::declaredAddressesOverruleNames()
{
    const FeatureTree tree(R"(
<Category Name="Root"><pFeature>GevSCDA</pFeature><pFeature>GevCurrentIPAddress</pFeature></Category>
<Integer Name="GevSCDA"><Value>16909060</Value></Integer>
<Integer Name="GevCurrentIPAddress"><Value>16909060</Value><Representation>IPV4Address</Representation></Integer>)");
    QCOMPARE(tree.value("GevSCDA").toString(), QStringLiteral("16909060"));
    QCOMPARE(tree.value("GevCurrentIPAddress").toString(), QStringLiteral("1.2.3.4"));
}

void TestGenParamTreeModel::names()
{
    const FeatureTree tree;
    const QModelIndex exposure = tree.cell("Exposure", nameColumn);
    QCOMPARE(exposure.data().toString(), QStringLiteral("Exposure Time"));
    QCOMPARE(exposure.data(Qt::ToolTipRole).toString(), QStringLiteral("How long"));
    QCOMPARE(tree.value("Exposure", Qt::ToolTipRole).toString(), QStringLiteral("How long"));
    QCOMPARE(tree.cell("Mode", nameColumn).data(Qt::ToolTipRole).toString(), QStringLiteral("Mode"));
    // What cannot be read is replaced by the name, and is nobody's error.
    QSignalSpy appeared(tree.model.get(), &GenParamTreeModel::errorAppeared);
    failGetter(*tree.map, "Exposure", "GetDisplayName");
    failGetter(*tree.map, "Exposure", "GetName");
    failGetter(*tree.map, "Exposure", "GetToolTip");
    QCOMPARE(exposure.data().toString(), QStringLiteral("Exposure"));
    QCOMPARE(exposure.data(Qt::ToolTipRole).toString(), QStringLiteral("Exposure"));
    QCOMPARE(appeared.size(), 0);
}

void TestGenParamTreeModel::colorsAndFlags()
{
    const FeatureTree tree;
    const QPalette palette = QGuiApplication::palette();
    QCOMPARE(tree.cell("Numbers", nameColumn).data(Qt::BackgroundRole).value<QBrush>(),
             QBrush(palette.color(QPalette::Active, QPalette::Midlight)));
    QVERIFY(!tree.cell("Mode", nameColumn).data(Qt::BackgroundRole).isValid());
    QVERIFY(!tree.value("Numbers", Qt::ForegroundRole).isValid());
    const QBrush grey(palette.color(QPalette::Disabled, QPalette::Text));
    for (const char *name : {"Key", "Serial", "Gone"})
        QCOMPARE(tree.value(name, Qt::ForegroundRole).value<QBrush>(), grey);
    for (const char *name : {"Start", "Mode", "Exposure"})
        QVERIFY(!tree.value(name, Qt::ForegroundRole).isValid());

    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (const char *name : {"Key", "Start", "Mode"})
        QCOMPARE(tree.model->flags(tree.cell(name)), plain | Qt::ItemIsEditable);
    for (const char *name : {"Serial", "Gone", "Others"})
        QCOMPARE(tree.model->flags(tree.cell(name)), plain);
    QCOMPARE(tree.model->flags(tree.cell("Mode", nameColumn)), plain);
    failGetter(*tree.map, "Mode", "GetAccessMode");
    QCOMPARE(tree.model->flags(tree.cell("Mode")), plain);
}

void TestGenParamTreeModel::whatsThis()
{
    const std::pair<const char *, const char *> rows[] = {
        {"Exposure",
         "<i>Selectors:</i> Mode|<i>Type:</i> Integer|<i>Limits</i>: Min: -4, Max: 4000|<i>Increment</i>: 4|"
         "<i>Description:</i> Time &lt; one frame &amp; more|<i>Streamable:</i> True|<i>Cachable:</i> WriteThrough"},
        {"Binning",
         "<i>Type:</i> Integer|<i>Limits</i>: Min: 1, Max: 5|<i>Valid values</i>: 1,2,4|<i>Description:</i> |"
         "<i>Streamable:</i> False|<i>Cachable:</i> WriteThrough"},
        {"Gain",
         "<i>Type:</i> Float|<i>Limits</i>: Min: 0.25, Max: 8.25|<i>Increment</i>: 0.25|<i>Description:</i> |"
         "<i>Streamable:</i> False|<i>Cachable:</i> WriteAround"},
        {"Mode",
         "<i>Type:</i> Enumeration|<i>Enumeration entries</i>:|\"Off\": 0 (0x00000000)|"
         "\"Continuous\": 10 (0x0000000a)|\"Never\": 3 (0x00000003)|<i>Description:</i> |"
         "<i>Streamable:</i> False|<i>Cachable:</i> WriteThrough"},
        // Its limits cannot be had.
        {"Gone", "<i>Type:</i> Integer|<i>Description:</i> |<i>Streamable:</i> False|<i>Cachable:</i> WriteThrough"},
    };
    const FeatureTree tree;
    for (const auto &[name, text] : rows) {
        QCOMPARE(tree.value(name, Qt::WhatsThisRole).toString().replace(QLatin1String("<br />"), QLatin1String("|")),
                 QLatin1String("<i>Name:</i> ") + QLatin1String(name) + QLatin1Char('|') + QLatin1String(text));
    }
}

void TestGenParamTreeModel::editors_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("properties");
    const auto row = [](const char *name, int kind, const char *properties) {
        QTest::newRow(name) << kind << QString::fromUtf8(properties);
    };
    row("Exposure", ControlData::SpinBox64,
        "minimum=-4 maximum=4000 singleStep=4 displayIntegerBase=10 frame=false accelerated=true "
        "keyboardTracking=false validateStepping=true ignoreFocusOut=true");
    row("Mask", ControlData::SpinBox64,
        "minimum=-9223372036854775808 maximum=9223372036854775807 singleStep=1 displayIntegerBase=16 "
        "validateStepping=false");
    row("GevMACAddress", ControlData::SpinBox64, "displayIntegerBase=10");
    row("Gain", ControlData::DoubleSpinBox,
        "minimum=0.25 maximum=8.25 singleStep=0.25 decimals=3 suffix=dB frame=false accelerated=true");
    row("Ratio", ControlData::DoubleSpinBox, "minimum=-1.7976931348623157e+308 singleStep=1 decimals=323");
    row("Binning", ControlData::ComboBox, "frame=false items=1px:1,2px:2,4px:4");
    row("Fraction", ControlData::ComboBox, "frame=false items=1.375mm:1,2.75mm:2,5.5mm:5");
    row("Flag", ControlData::ComboBox, "frame=false items=True:true,False:false");
    row("Mode", ControlData::ComboBox, "frame=false items=Off:0,Continuous:10");
    row("Start", ControlData::PushButton, "text=Execute flat=true autoDefault=false");
    row("GevSCDA", ControlData::LineEdit, "frame=false alignment=132");
    row("Label", ControlData::LineEdit, "frame=false alignment=129");
    row("Blob", -1, "");
    row("Others", -1, "");
}

void TestGenParamTreeModel::editors()
{
    QFETCH(int, kind);
    QFETCH(QString, properties);
    const FeatureTree tree;
    const QVariant data = tree.value(QTest::currentDataTag(), GenParamTreeModel::ControlDataRole);
    QCOMPARE(data.isValid(), kind >= 0);
    if (!data.isValid())
        return;
    QCOMPARE(int(data.value<ControlData>().kind), kind);
    const std::unique_ptr<QWidget> editor(data.value<ControlData>().editor);
    QVERIFY(!editor->parent());
    if (const auto *box = qobject_cast<QComboBox *>(editor.get()))
        editor->setProperty("items", itemsOf(*box).join(QLatin1Char(',')));
    if (const auto *box = qobject_cast<QtOrvSpinBoxVal64 *>(editor.get())) {
        editor->setProperty("validateStepping", box->validateStepping());
        editor->setProperty("ignoreFocusOut", box->ignoreFocusOut());
    }
    const QStringList expected = properties.split(QLatin1Char(' '));
    for (const QString &property : expected) {
        const QByteArray name = property.section(QLatin1Char('='), 0, 0).toLatin1();
        QCOMPARE(QString::fromLatin1(name) + QLatin1Char('=') + editor->property(name.constData()).toString(),
                 property);
    }
}

void TestGenParamTreeModel::readsOnlyWhatARoleNeeds()
{
    const FeatureTree tree;
    QCOMPARE(tree.port.readCount(), quint64(0));
    const QModelIndexList rows = tree.rows();
    for (const QModelIndex &index : rows) {
        for (int role = 0; role < Qt::UserRole + 3; ++role) {
            if (role != GenParamTreeModel::ControlDataRole && role != Qt::WhatsThisRole)
                index.data(role);
            if (role != Qt::DisplayRole && role != Qt::EditRole && role != GenParamTreeModel::ControlDataRole)
                index.sibling(index.row(), valueColumn).data(role);
        }
        tree.model->flags(index.sibling(index.row(), valueColumn));
    }
    QCOMPARE(tree.port.readCount(), quint64(0));
    tree.value("Serial");
    QCOMPARE(tree.port.readCount(), quint64(1));
}

void TestGenParamTreeModel::reportsAFailedReadOnce()
{
    const FeatureTree tree;
    const QModelIndex cell = tree.cell("Exposure");
    const QModelIndex name = tree.cell("Exposure", nameColumn);
    QSignalSpy appeared(tree.model.get(), &GenParamTreeModel::errorAppeared);
    QSignalSpy disappeared(tree.model.get(), &GenParamTreeModel::errorDisappeared);
    failGetter(*tree.map, "Exposure", "GetValue", "cable pulled");
    QCOMPARE(cell.data().toString(), QStringLiteral("ERROR"));
    QCOMPARE(cell.data().toString(), QStringLiteral("ERROR"));
    QCOMPARE(appeared.size(), 1);
    QCOMPARE(appeared.takeFirst(), QVariantList({cell, QStringLiteral("Exposure"), QStringLiteral("cable pulled"), 0}));
    QCOMPARE(name.data(Qt::ForegroundRole).value<QBrush>(), red);
    QCOMPARE(cell.data(Qt::ForegroundRole).value<QBrush>(), red);
    QCOMPARE(name.data(Qt::ToolTipRole).toString(), QStringLiteral("cable pulled"));
    QCOMPARE(cell.data(Qt::ToolTipRole).toString(), QStringLiteral("cable pulled"));
    QVERIFY(!cell.data(Qt::EditRole).isValid());
    QCOMPARE(appeared.takeFirst().last().toInt(), int(Qt::EditRole));

    clearFaults(*tree.map);
    QCOMPARE(cell.data().toString(), QStringLiteral("0us"));
    QCOMPARE(disappeared.takeFirst(), QVariantList({cell, QStringLiteral("Exposure"), 0}));
    QCOMPARE(name.data(Qt::ForegroundRole).value<QBrush>(), red);
    QVERIFY(cell.data(Qt::EditRole).isValid());
    QVERIFY(!name.data(Qt::ForegroundRole).isValid());
    QCOMPARE(disappeared.size(), 1);

    failGetter(*tree.map, "Exposure", "GetValue");
    cell.data();
    QCOMPARE(appeared.takeFirst().at(2).toString(), QStringLiteral("Unknown Error"));
    QVERIFY(!tree.model->setData(cell, 4001)); // out of range
    QCOMPARE(appeared.takeFirst().last().toInt(), int(GenParamTreeModel::ValueInterfaceRole));
}

void TestGenParamTreeModel::writes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *title, const char *name, const QVariant &value, const char *text) {
        QTest::newRow(title) << QByteArray(name) << value << (text != nullptr) << QString::fromUtf8(text);
    };
    row("number as text", "Exposure", QStringLiteral("400"), "400us");
    row("address for a number", "Mask", QStringLiteral("0.0.1.2"), "102");
    row("no number", "Exposure", QStringLiteral("fast"), nullptr);
    row("too large", "Mask", quint64(1) << 63, nullptr);
    row("real out of range", "Mask", 1e300, nullptr);
    row("nothing", "Exposure", QVariant(), nullptr);
    row("address", "GevSCDA", QStringLiteral("239.192.1.10"), "239.192.1.10");
    row("address as number", "GevSCDA", 258, "0.0.1.2");
    row("number for an address", "GevSCDA", QStringLiteral("258"), nullptr);
    row("large octet", "GevSCDA", QStringLiteral("1.2.3.256"), nullptr);
    row("mac", "GevMACAddress", QStringLiteral("00:01:A2:B3:C4:D5"), nullptr);
    row("no float", "Gain", QStringLiteral("loud"), nullptr);
    row("string", "Label", QStringLiteral("Größe"), "Größe");
    row("entry by name", "Mode", QStringLiteral("Continuous"), "Continuous");
    row("no entry", "Mode", QVariant::fromValue(QSize(1, 1)), nullptr);
    row("register", "Blob", 1, nullptr);
    row("category", "Others", 1, nullptr);
    row("command", "Start", QVariant(), "Execute");
}

void TestGenParamTreeModel::writes()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);
    const FeatureTree tree;
    const QModelIndex cell = tree.cell(name.constData());
    QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
    QSignalSpy appeared(tree.model.get(), &GenParamTreeModel::errorAppeared);
    QSignalSpy disappeared(tree.model.get(), &GenParamTreeModel::errorDisappeared);
    QVERIFY(!tree.model->setData(cell, value, Qt::DisplayRole));
    QVERIFY(!tree.model->setData(cell.sibling(cell.row(), nameColumn), value));
    QCOMPARE(tree.port.writeCount(), quint64(0));

    QCOMPARE(tree.model->setData(cell, value), accepted);
    QCOMPARE(appeared.size(), 0);
    if (accepted) {
        QTEST(cell.data().toString(), "text");
        QCOMPARE(changed.last().mid(0, 2), QVariantList({cell, cell}));
        QCOMPARE(disappeared.size(), 1);
        QCOMPARE(disappeared.first(), QVariantList({cell, QString::fromUtf8(name), 256}));
    } else {
        QCOMPARE(tree.port.writeCount(), quint64(0));
        QCOMPARE(changed.size(), 0);
        QCOMPARE(disappeared.size(), 0);
    }
}

void TestGenParamTreeModel::listsErrorsInOrder()
{
    GenParamErrorController errors;
    QCOMPARE(errors.GetErrorInfo(), QString());
    errors.SetError(QStringLiteral("Width"), QStringLiteral("out of %3 range %1"), 256);
    errors.SetError(QStringLiteral("Width"), QStringLiteral("none"), 9);
    errors.SetError(QStringLiteral("Gain"), QString(), 0);
    QCOMPARE(errors.GetErrorInfo(),
             QStringLiteral("{Gain}{id:0}:  \n{Width}{id:9}: none \n{Width}{id:256}: out of %3 range %1 \n"));
    QCOMPARE(errors.firstMessage(QStringLiteral("Width")), QStringLiteral("none"));
    QVERIFY(!errors.ClearError(QStringLiteral("Other"), 0));
}

void TestGenParamTreeModel::slotsMayCallBack()
{
    const FeatureTree tree;
    const QModelIndex cell = tree.cell("Exposure");
    QStringList seen;
    const auto look = [&](const QModelIndex &index) {
        if (index == cell)
            seen += index.data().toString();
    };
    connect(tree.model.get(), &GenParamTreeModel::errorAppeared, this, look);
    connect(tree.model.get(), &GenParamTreeModel::errorDisappeared, this, look);
    connect(tree.model.get(), &QAbstractItemModel::dataChanged, this, look);
    failGetter(*tree.map, "Exposure", "GetValue");
    cell.data();
    clearFaults(*tree.map);
    cell.data();
    tree.model->setData(cell, 4);
    QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("ERROR 0us 4us 4us 4us"));
}

void TestGenParamTreeModel::queuesChangesOfOtherThreads()
{
    const FeatureTree tree;
    QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
    std::thread([&] {
        for (int value : {4, 8, 12})
            tree.node<GenApi::CIntegerPtr>("Exposure")->SetValue(value);
        tree.node<GenApi::CIntegerPtr>("Mask")->SetValue(1);
    }).join();
    QCOMPARE(changed.size(), 0);
    QTRY_COMPARE(changedFeatures(changed).size(), 2);
    QStringList names = changedFeatures(changed);
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral("Exposure"), QStringLiteral("Mask")}));
}

void TestGenParamTreeModel::dropsChangesWhenItGoes()
{
    FeatureTree tree;
    std::atomic<bool> stop{false};
    std::thread camera([&] {
        for (int value = 0; !stop; value = (value + 4) % 4000) {
            tree.node<GenApi::CIntegerPtr>("Exposure")->SetValue(value);
            std::this_thread::yield();
        }
    });
    const auto end = qScopeGuard([&] {
        stop = true;
        camera.join();
    });
    for (int i = 0; i < 20; ++i) {
        tree.model.reset(new GenParamTreeModel(tree.map.get(), nullptr));
        QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
        QTRY_VERIFY(changed.size() > 0);
        tree.model.reset();
        QCOMPARE(registeredCallbacks(*tree.map), size_t(0));
        QCoreApplication::processEvents();
    }
}

void TestGenParamTreeModel::mayGoInASlot()
{
    FeatureTree tree;
    int reports = 0;
    connect(tree.model.get(), &QAbstractItemModel::dataChanged, this, [&] {
        ++reports;
        tree.model.reset();
    });
    std::thread([&] {
        tree.node<GenApi::CIntegerPtr>("Exposure")->SetValue(4);
        tree.node<GenApi::CIntegerPtr>("Mask")->SetValue(1);
    }).join();
    QTRY_VERIFY(!tree.model);
    QCOMPARE(reports, 1);
    QCOMPARE(registeredCallbacks(*tree.map), size_t(0));
}

ORV_TEST_MAIN(TestGenParamTreeModel)

#include "tst_genparamtreemodel.moc"
