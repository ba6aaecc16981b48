// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featurecamera.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include "orvtest.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLineEdit>

#include <thread>

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

/** Flags as a number. */
QString propertyText(const QWidget &editor, const QByteArray &name)
{
    const QMetaObject *const meta = editor.metaObject();
    const QVariant value = editor.property(name);
    const bool isFlags = meta->property(meta->indexOfProperty(name)).isFlagType();
    return isFlags ? QString::number(value.toInt()) : value.toString();
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
    void showsTheTree()
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

    void keepsTheFirstPlaceOfAFeature()
    {
        FeatureTree tree(R"(
<Category Name="Root"><pFeature>Outer</pFeature><pFeature>Twice</pFeature></Category>
<Category Name="Outer"><pFeature>Inner</pFeature><pFeature>Height</pFeature><pFeature>Twice</pFeature></Category>
<Category Name="Inner"><pFeature>Outer</pFeature><pFeature>Root</pFeature><pFeature>Inner</pFeature></Category>
<Category Name="Twice"><pFeature>Width</pFeature><pFeature>Height</pFeature></Category>
<Integer Name="Width"><Value>1</Value></Integer><Integer Name="Height"><Value>2</Value></Integer>)");
        QStringList names;
        for (const QModelIndex &index : tree.rows())
            names += nodeName(index);
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("Outer Inner Outer Root Inner Height Twice Width Height Twice Width Height"));
        const QModelIndex outer = tree.model->index(0, 0);
        const QModelIndex again = tree.model->index(1, nameColumn, tree.model->index(1, 0));
        QCOMPARE(nodeName(again), QStringLiteral("Height"));
        QCOMPARE(again.row(), 1);
        QCOMPARE(again.parent(), outer);
        // One callback an occurrence, all of them for the first cell.
        QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
        tree.node<GenApi::CIntegerPtr>("Height")->SetValue(5);
        QCOMPARE(changedFeatures(changed).count(QStringLiteral("Height")), 2);
        QCOMPARE(changed.first().first().toModelIndex(), tree.model->index(1, valueColumn, outer));
    }

    /** Without bounds a stack would be too small for it, and no memory large enough. */
    void boundsNestedCategories()
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

    void showsValues()
    {
        const std::tuple<const char *, const char *, const char *> rows[] = {
            {"Exposure", "1500", "1500us editable"},
            {"GevSCDA", "-1", "255.255.255.255 editable"}, // only 32 bits count
            {"GevMACAddress", "0x0001A2B3C4D5", "00:01:A2:B3:C4:D5 editable"},
            {"Mask", "-1", "FFFFFFFFFFFFFFFF editable"},
            {"Binning", "4", "4px editable"},
            {"Fraction", "5.5", "5.500000mm editable"},
            {"Mode", "Continuous", "Continuous editable"},
            {"Start", nullptr, "Execute editable"},
            {"Serial", nullptr, "0 grey"},
            {"Key", nullptr, "<Value not readable> grey editable"},
            {"Gone", nullptr, "<Value not available> grey"},
            {"Others", nullptr, ""},
        };
        const FeatureTree tree;
        const QBrush grey(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text));
        for (const auto &[name, value, expected] : rows) {
            if (value)
                tree.node<GenApi::CValuePtr>(name)->FromString(value);
            QString shown = tree.value(name).toString();
            if (tree.value(name, Qt::ForegroundRole).value<QBrush>() == grey)
                shown += QLatin1String(" grey");
            if (tree.model->flags(tree.cell(name)).testFlag(Qt::ItemIsEditable))
                shown += QLatin1String(" editable");
            QCOMPARE(shown, QString::fromUtf8(expected));
            QVERIFY(!tree.model->flags(tree.cell(name, nameColumn)).testFlag(Qt::ItemIsEditable));
        }
        for (const char *name : {"Start", "Blob", "Others"})
            QVERIFY(!tree.value(name, Qt::EditRole).isValid());
        QCOMPARE(tree.value("Fraction", Qt::EditRole).value<VariantData>().value, QVariant(5.5));
        failGetter(*tree.map, "Mode", "GetAccessMode");
        QCOMPARE(tree.model->flags(tree.cell("Mode")), Qt::ItemIsSelectable | Qt::ItemIsEnabled);

        const FeatureTree declared(R"(
<Category Name="Root"><pFeature>GevSCDA</pFeature><pFeature>GevCurrentIPAddress</pFeature></Category>
<Integer Name="GevSCDA"><Value>16909060</Value></Integer>
<Integer Name="GevCurrentIPAddress"><Value>16909060</Value><Representation>IPV4Address</Representation></Integer>)");
        QCOMPARE(declared.value("GevSCDA").toString(), QStringLiteral("16909060"));
        QCOMPARE(declared.value("GevCurrentIPAddress").toString(), QStringLiteral("1.2.3.4"));
    }

    void showsNames()
    {
        const FeatureTree tree;
        QCOMPARE(tree.cell("Numbers", nameColumn).data(Qt::BackgroundRole).value<QBrush>(),
                 QBrush(QGuiApplication::palette().color(QPalette::Active, QPalette::Midlight)));
        const QModelIndex exposure = tree.cell("Exposure", nameColumn);
        QVERIFY(!exposure.data(Qt::BackgroundRole).isValid());
        QCOMPARE(exposure.data().toString(), QStringLiteral("Exposure Time"));
        QCOMPARE(exposure.data(Qt::ToolTipRole).toString(), QStringLiteral("How long"));
        QCOMPARE(tree.value("Exposure", Qt::ToolTipRole).toString(), QStringLiteral("How long"));
        QCOMPARE(tree.cell("Mode", nameColumn).data(Qt::ToolTipRole).toString(), QStringLiteral("Mode"));
        // What cannot be read is replaced by the name, and is nobody's error.
        QSignalSpy appeared(tree.model.get(), &GenParamTreeModel::errorAppeared);
        for (const char *getter : {"GetDisplayName", "GetName", "GetToolTip"})
            failGetter(*tree.map, "Exposure", getter);
        QCOMPARE(exposure.data().toString(), QStringLiteral("Exposure"));
        QCOMPARE(exposure.data(Qt::ToolTipRole).toString(), QStringLiteral("Exposure"));
        QCOMPARE(appeared.size(), 0);
    }

    void whatsThis()
    {
        const std::pair<const char *, const char *> rows[] = {
            {"Exposure",
             "<i>Selectors:</i> Mode|<i>Type:</i> Integer|<i>Limits</i>: Min: -4, Max: 4000|<i>Increment</i>: 4|"
             "<i>Description:</i> Time &lt; one frame &amp; more|<i>Streamable:</i> True|<i>Cachable:</i> "
             "WriteThrough"},
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
            {"Gone",
             "<i>Type:</i> Integer|<i>Description:</i> |<i>Streamable:</i> False|<i>Cachable:</i> WriteThrough"},
        };
        const FeatureTree tree;
        for (const auto &[name, text] : rows) {
            QCOMPARE(
                tree.value(name, Qt::WhatsThisRole).toString().replace(QLatin1String("<br />"), QLatin1String("|")),
                QLatin1String("<i>Name:</i> ") + QLatin1String(name) + QLatin1Char('|') + QLatin1String(text));
        }
    }

    void editors()
    {
        const std::tuple<const char *, int, const char *> rows[] = {
            {"Exposure", ControlData::SpinBox64,
             "minimum=-4 maximum=4000 singleStep=4 displayIntegerBase=10 accelerated=true keyboardTracking=false "
             "validateStepping=true ignoreFocusOut=true"},
            {"Mask", ControlData::SpinBox64,
             "minimum=-9223372036854775808 maximum=9223372036854775807 singleStep=1 displayIntegerBase=16 "
             "validateStepping=false"},
            {"GevMACAddress", ControlData::SpinBox64, "displayIntegerBase=10"},
            {"Gain", ControlData::DoubleSpinBox, "minimum=0.25 maximum=8.25 singleStep=0.25 decimals=3 suffix=dB"},
            {"Ratio", ControlData::DoubleSpinBox, "minimum=-1.7976931348623157e+308 singleStep=1 decimals=323"},
            {"Binning", ControlData::ComboBox, "items=1px:1,2px:2,4px:4"},
            {"Fraction", ControlData::ComboBox, "items=1.375mm:1,2.75mm:2,5.5mm:5"},
            {"Flag", ControlData::ComboBox, "items=True:true,False:false"},
            {"Mode", ControlData::ComboBox, "items=Off:0,Continuous:10"},
            {"Start", ControlData::PushButton, "text=Execute flat=true autoDefault=false"},
            {"GevSCDA", ControlData::LineEdit, "frame=false alignment=132"},
            {"Label", ControlData::LineEdit, "frame=false alignment=129"},
            {"Blob", -1, ""},
            {"Others", -1, ""},
        };
        const FeatureTree tree;
        for (const auto &[feature, kind, properties] : rows) {
            const QVariant data = tree.value(feature, GenParamTreeModel::ControlDataRole);
            QCOMPARE(data.isValid() ? int(data.value<ControlData>().kind) : -1, kind);
            if (!data.isValid())
                continue;
            const std::unique_ptr<QWidget> editor(data.value<ControlData>().editor);
            QVERIFY(!editor->parent());
            if (const auto *box = qobject_cast<QComboBox *>(editor.get()))
                editor->setProperty("items", itemsOf(*box).join(QLatin1Char(',')));
            if (const auto *box = qobject_cast<QtOrvSpinBoxVal64 *>(editor.get())) {
                editor->setProperty("validateStepping", box->validateStepping());
                editor->setProperty("ignoreFocusOut", box->ignoreFocusOut());
            }
            QStringList found;
            for (const QByteArray &property : QByteArray(properties).split(' ')) {
                const QByteArray name = property.left(property.indexOf('='));
                found += QString::fromLatin1(name) + QLatin1Char('=') + propertyText(*editor, name);
            }
            QCOMPARE(found.join(QLatin1Char(' ')), QLatin1String(properties));
        }
    }

    void reportsAFailedReadOnce()
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
        QCOMPARE(appeared.takeFirst(),
                 QVariantList({cell, QStringLiteral("Exposure"), QStringLiteral("cable pulled"), 0}));
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

    void writes()
    {
        const std::tuple<const char *, QVariant, const char *> rows[] = {
            {"Exposure", QStringLiteral("400"), "400us"},
            {"Mask", QStringLiteral("0.0.1.2"), "102"},
            {"Exposure", QStringLiteral("fast"), nullptr},
            {"Mask", quint64(1) << 63, nullptr},
            {"Mask", 1e300, nullptr},
            {"Exposure", QVariant(), nullptr},
            {"GevSCDA", QStringLiteral("239.192.1.10"), "239.192.1.10"},
            {"GevSCDA", 258, "0.0.1.2"},
            {"GevSCDA", QStringLiteral("258"), nullptr},
            {"GevSCDA", QStringLiteral("1.2.3.256"), nullptr},
            {"GevMACAddress", QStringLiteral("00:01:A2:B3:C4:D5"), nullptr},
            {"Gain", QStringLiteral("loud"), nullptr},
            {"Label", QStringLiteral("Größe"), "Größe"},
            {"Mode", QStringLiteral("Continuous"), "Continuous"},
            {"Mode", QVariant::fromValue(QSize(1, 1)), nullptr},
            {"Blob", 1, nullptr},
            {"Others", 1, nullptr},
            {"Start", QVariant(), "Execute"},
        };
        for (const auto &[name, value, text] : rows) {
            const FeatureTree tree;
            const QModelIndex cell = tree.cell(name);
            QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
            QSignalSpy appeared(tree.model.get(), &GenParamTreeModel::errorAppeared);
            QSignalSpy disappeared(tree.model.get(), &GenParamTreeModel::errorDisappeared);
            QVERIFY(!tree.model->setData(cell, value, Qt::DisplayRole));
            QVERIFY(!tree.model->setData(cell.siblingAtColumn(nameColumn), value));
            QCOMPARE(tree.port.writeCount(), quint64(0));

            QVERIFY2(tree.model->setData(cell, value) == bool(text), name);
            QCOMPARE(appeared.size(), 0);
            QCOMPARE(disappeared.size(), text ? 1 : 0);
            if (text) {
                QCOMPARE(cell.data().toString(), QString::fromUtf8(text));
                QCOMPARE(changed.last().mid(0, 2), QVariantList({cell, cell}));
                QCOMPARE(disappeared.first(), QVariantList({cell, QString::fromUtf8(name), 256}));
            } else {
                QCOMPARE(tree.port.writeCount(), quint64(0));
                QCOMPARE(changed.size(), 0);
            }
        }
    }

    /** Nothing is told before the event loop runs, each change once then, and none after the model has gone. */
    void goesInAReportOfAnotherThread()
    {
        FeatureTree tree;
        const auto change = [&tree] {
            std::thread([&] {
                for (int value : {4, 8, 12})
                    tree.node<GenApi::CIntegerPtr>("Exposure")->SetValue(value);
                tree.node<GenApi::CIntegerPtr>("Mask")->SetValue(1);
            }).join();
        };
        QSignalSpy changed(tree.model.get(), &QAbstractItemModel::dataChanged);
        change();
        QCOMPARE(changed.size(), 0);
        QTRY_COMPARE(changedFeatures(changed).size(), 2);
        int reports = 0;
        connect(tree.model.get(), &QAbstractItemModel::dataChanged, this, [&] {
            ++reports;
            tree.model.reset();
        });
        change();
        QTRY_VERIFY(!tree.model);
        QCOMPARE(reports, 1);
        QCOMPARE(registeredCallbacks(*tree.map), size_t(0));
    }
};

ORV_TEST_MAIN(TestGenParamTreeModel)

#include "tst_genparamtreemodel.moc"
