// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featurecamera.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QAbstractProxyModel>
#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

#include <functional>

namespace {

/** Registers in two categories; what is written to Amount decides whether Passing and what is in Deep are there. */
QByteArray nodes()
{
    const auto reg = [](const char *name, int address) {
        return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + QByteArray::number(address)
            + "</Address><Length>8</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Cachable>NoCache</Cachable>"
              "<PollingTime>1</PollingTime><Sign>Signed</Sign><Endianess>BigEndian</Endianess></IntReg>";
    };
    return R"(<Category Name="Root"><pFeature>Plain</pFeature><pFeature>Deep</pFeature></Category>
<Category Name="Plain"><pFeature>Amount</pFeature><pFeature>Passing</pFeature><pFeature>Label</pFeature>
  <pFeature>Mode</pFeature><pFeature>Flag</pFeature></Category>
<Category Name="Deep"><pIsImplemented>Switch</pIsImplemented><pFeature>Inner</pFeature></Category>
<Integer Name="Amount"><pValue>AmountReg</pValue></Integer>
<Integer Name="Passing"><pIsImplemented>Switch</pIsImplemented><pValue>PassingReg</pValue><pMax>MostReg</pMax></Integer>
<Boolean Name="Flag"><pValue>MostReg</pValue></Boolean>
<Integer Name="Inner"><pValue>PassingReg</pValue></Integer>
<Enumeration Name="Mode"><EnumEntry Name="Off"><Value>0</Value></EnumEntry>
  <EnumEntry Name="On"><Value>1</Value></EnumEntry><pValue>ModeReg</pValue></Enumeration>
<StringReg Name="Label"><Address>0x80</Address><Length>16</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
  <Cachable>NoCache</Cachable></StringReg>
<IntSwissKnife Name="Switch"><pVariable Name="A">AmountReg</pVariable><Formula>A = 0</Formula></IntSwissKnife>)"
        + reg("AmountReg", 0) + reg("PassingReg", 8) + reg("ModeReg", 16) + reg("MostReg", 24);
}

/** Calls whoever listens from inside each access. */
class TalkingPort : public OrvGenApi::MemoryPort
{
public:
    void Read(void *buffer, int64_t address, int64_t length) override
    {
        MemoryPort::Read(buffer, address, length);
        onRead();
    }
    void Write(const void *buffer, int64_t address, int64_t length) override
    {
        MemoryPort::Write(buffer, address, length);
        onWrite();
    }

    std::function<void()> onRead = [] {};
    std::function<void()> onWrite = [] {};
};

struct Stage
{
    Stage()
    {
        camera.map->connect(&port, "Device");
        other.map->connect(&otherPort, "Device");
        view = new OrvGui::OrvGenParamTreeView(camera.map.get());
        tree = view->treeView();
        view->setVisibility(OrvGui::Guru);
        tree->expandAll();
        view->resize(500, 500);
        view->show();
        QApplication::setActiveWindow(view);
        tree->setFocus();
        QCoreApplication::processEvents();
    }
    ~Stage() { delete view; }
    Q_DISABLE_COPY(Stage)

    template <typename Widget>
    Widget *part(const char *name) const
    {
        return view ? view->findChild<Widget *>(QLatin1String(name)) : nullptr;
    }

    QModelIndex cell(const char *name, int column = 1) const
    {
        return tree && tree->model() ? cellOf(*tree->model(), camera.map->GetNode(name), column) : QModelIndex();
    }
    void click(const QModelIndex &index) const
    {
        if (tree && index.isValid())
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
    }
    void keys(const char *name, const char *text) const
    {
        click(cell(name));
        for (const char *key = text; *key && QApplication::focusWidget(); ++key)
            QTest::keyClick(QApplication::focusWidget(), *key);
    }

    FeatureCamera camera{nodes()};
    FeatureCamera other{nodes()};
    TalkingPort port;
    OrvGenApi::MemoryPort otherPort;
    QPointer<OrvGui::OrvGenParamTreeView> view;
    QPointer<QTreeView> tree;
};

using Slot = std::function<void()>;

struct Signal
{
    const char *name;
    std::function<void(Stage &, const Slot &)> listen;
};

struct Action
{
    const char *name;
    std::function<void(Stage &)> act;
};

GenParamTreeModel *modelOf(const Stage &stage)
{
    auto *const proxy = qobject_cast<QAbstractProxyModel *>(stage.tree->model());
    return static_cast<GenParamTreeModel *>(proxy->sourceModel());
}

/** To a signal of what \a sender gives. */
template <typename Sender, typename Emitted>
auto listenTo(Sender *(*sender)(const Stage &stage), Emitted emitted)
{
    return [=](Stage &stage, const Slot &slot) { QObject::connect(sender(stage), emitted, stage.tree, slot); };
}

/** To a signal of the model of a tree that has been emptied. */
template <typename Emitted>
auto listenToEmpty(Emitted emitted)
{
    return [=](Stage &stage, const Slot &slot) {
        stage.view->setParams(static_cast<GenApi::INodeMap *>(nullptr));
        QObject::connect(stage.tree->model(), emitted, stage.tree, slot);
    };
}

/** With all that is put off until events are processed. */
void runEventLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
    loop.exec();
}

const std::vector<Signal> &signalsOfTheTree()
{
    const auto model = +[](const Stage &stage) { return stage.tree->model(); };
    const auto selection = +[](const Stage &stage) { return stage.tree->selectionModel(); };
    const auto tree = +[](const Stage &stage) { return stage.tree.data(); };
    static const std::vector<Signal> all = {
        {"port read", [](Stage &stage, const Slot &slot) { stage.port.onRead = slot; }},
        {"port write", [](Stage &stage, const Slot &slot) { stage.port.onWrite = slot; }},
        {"node callback",
         [](Stage &stage, const Slot &slot) {
             const std::function<void(GenApi::INode *)> callback = [slot](GenApi::INode *) { slot(); };
             for (const char *name : {"Amount", "Label", "Mode"})
                 GenApi::Register(stage.camera.map->GetNode(name), callback);
         }},
        {"error",
         [](Stage &stage, const Slot &slot) {
             failGetter(*stage.camera.map, "Mode", "SetIntValue", "no");
             failGetter(*stage.camera.map, "Label", "GetValue", "no");
             QObject::connect(modelOf(stage), &GenParamTreeModel::errorAppeared, stage.tree, slot);
         }},
        {"changed value", listenTo(model, &QAbstractItemModel::dataChanged)},
        {"layout", listenTo(model, &QAbstractItemModel::layoutChanged)},
        {"rows", listenTo(model, &QAbstractItemModel::rowsAboutToBeRemoved)},
        {"about to be filled", listenToEmpty(&QAbstractItemModel::modelAboutToBeReset)},
        {"filled", listenToEmpty(&QAbstractItemModel::modelReset)},
        {"current item", listenTo(selection, &QItemSelectionModel::currentChanged)},
        {"selection", listenTo(selection, &QItemSelectionModel::selectionChanged)},
        {"collapsed", listenTo(tree, &QTreeView::collapsed)},
        {"expanded", listenTo(tree, &QTreeView::expanded)},
    };
    return all;
}

const std::vector<Action> &reactions()
{
    static const std::vector<Action> all = {
        {"clear", [](Stage &stage) { stage.view->clearParams(); }},
        {"other camera", [](Stage &stage) { stage.view->setParams(stage.other.map.get()); }},
        {"a message, and another camera in it",
         [](Stage &stage) {
             QTimer::singleShot(0, stage.view, [&stage] { stage.view->setParams(stage.other.map.get()); });
             runEventLoop();
         }},
        {"destroy", [](Stage &stage) { DestroyGenParamTreeView(stage.view); }},
        {"destroy, and a message",
         [](Stage &stage) {
             DestroyGenParamTreeView(stage.view);
             runEventLoop();
         }},
        {"rows go", [](Stage &stage) { stage.camera.node<GenApi::CIntegerPtr>("AmountReg")->SetValue(1); }},
        {"filter", [](Stage &stage) { stage.part<QLineEdit>("filterLineEdit")->setText(QStringLiteral("o*")); }},
        {"close categories", [](Stage &stage) { stage.tree->collapseAll(); }},
        {"move", [](Stage &stage) { stage.tree->setCurrentIndex(stage.cell("Inner")); }},
    };
    return all;
}

const std::vector<Action> &activities()
{
    static const std::vector<Action> all = {
        {"paint", [](Stage &stage) { stage.tree->grab(); }},
        {"enter", [](Stage &stage) { stage.keys("Amount", "1\r"); }},
        {"leave",
         [](Stage &stage) {
             stage.keys("Label", "abc");
             stage.click(stage.cell("Passing", 0));
         }},
        {"choose", [](Stage &stage) { stage.keys("Mode", "O"); }},
        {"move to a row that goes",
         [](Stage &stage) {
             stage.keys("Amount", "\x1b");
             stage.click(stage.cell("Label"));
             stage.keys("Amount", "1");
             if (QWidget *const editor = QApplication::focusWidget())
                 QTest::keyClick(editor, Qt::Key_Up);
             if (stage.tree)
                 stage.tree->setCurrentIndex(stage.cell("Passing"));
         }},
        {"filter",
         [](Stage &stage) {
             stage.click(stage.cell("Passing"));
             if (auto *const filter = stage.part<QLineEdit>("filterLineEdit"))
                 filter->setText(QStringLiteral("label"));
         }},
        {"poll",
         [](Stage &stage) {
             stage.click(stage.cell("Passing"));
             if (stage.tree && stage.tree->model())
                 stage.camera.map->Poll(5);
         }},
        {"close",
         [](Stage &stage) {
             stage.keys("Label", "abc");
             if (auto *const button = stage.part<QToolButton>("pbCollapseAll"))
                 button->click();
         }},
        {"a program closes and opens",
         [](Stage &stage) {
             QEventLoop loop; // without one a message would free what its own deferred deletion is to keep
             QTimer::singleShot(0, &loop, [&] {
                 for (const bool expand : {false, true}) {
                     if (stage.tree)
                         stage.tree->setExpanded(stage.cell("Plain", 0), expand);
                 }
                 loop.quit();
             });
             loop.exec();
         }},
        {"keys",
         [](Stage &stage) {
             stage.click(stage.cell("Flag", 0));
             for (const int key : {Qt::Key_Right, Qt::Key_Space, Qt::Key_F2, Qt::Key_Escape, Qt::Key_Left, Qt::Key_Left,
                                   Qt::Key_Left, Qt::Key_Return}) {
                 if (QWidget *const focus = QApplication::focusWidget())
                     QTest::keyClick(focus, Qt::Key(key));
             }
         }},
        {"set params", [](Stage &stage) { stage.view->setParams(stage.camera.map.get()); }},
        {"load", [](Stage &stage) { stage.view->loadState("Deep&lt;&amp;W150&amp;V1"); }},
    };
    return all;
}

} // namespace

/**
 * Whatever an application does from inside the view's own activity, nothing is used that has been freed: this is for
 * the address sanitizer. Each combination runs on a view of its own, the reaction once.
 */
class TestTreeReentrancy : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data()
    {
        QTest::addColumn<int>("signal");
        for (size_t i = 0; i < signalsOfTheTree().size(); ++i)
            QTest::newRow(signalsOfTheTree()[i].name) << int(i);
    }

    void survives()
    {
        QFETCH(const int, signal);
        int happened = 0;
        for (const Action &reaction : reactions()) {
            for (const Action &activity : activities()) {
                if (qEnvironmentVariableIsSet("ORV_WALK_LOG"))
                    qInfo("%s, %s", reaction.name, activity.name);
                happened += play(signalsOfTheTree()[size_t(signal)], reaction, activity);
                if (QTest::currentTestFailed())
                    return qInfo("in %s, %s", reaction.name, activity.name);
            }
        }
        QVERIFY(happened > 0);
    }

private:
    static int play(const Signal &signal, const Action &reaction, const Action &activity)
    {
        Stage stage;
        bool isOver = false;
        int happened = 0;
        signal.listen(stage, [&] {
            if (std::exchange(isOver, true) || !stage.view)
                return;
            ++happened;
            reaction.act(stage);
        });
        activity.act(stage);
        isOver = true;
        runEventLoop();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QByteArray name(reaction.name);
        if (happened && name.startsWith("destroy"))
            [&] { QVERIFY(!stage.view); }();
        else
            [&] { QVERIFY(stage.view && stage.tree); }();
        if (happened && name.startsWith("clear"))
            [&] { QVERIFY(!stage.tree->model()); }();
        if (stage.view) {
            stage.view->setParams(stage.camera.map.get());
            stage.view->grab();
        }
        QToolTip::hideText();
        return happened;
    }
};

ORV_TEST_MAIN(TestTreeReentrancy)
#include "tst_treereentrancy.moc"
