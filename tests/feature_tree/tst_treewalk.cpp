#include "orvtest.h"
#include "shownview.h"

#include <QAbstractButton>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

namespace {

/** Registers of each kind; Presence decides whether some are there, Most how far the numbers go. */
QByteArray walkNodes()
{
    const auto reg = [](const char *name, int address) {
        return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + QByteArray::number(address)
            + "</Address><Length>8</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><PollingTime>1</PollingTime>"
              "<Sign>Signed</Sign><Endianess>BigEndian</Endianess></IntReg>";
    };
    return R"(<Category Name="Root"><pFeature>First</pFeature><pFeature>Second</pFeature></Category>
<Category Name="First"><pFeature>Number</pFeature><pFeature>Flag</pFeature><pFeature>Start</pFeature>
  <pFeature>Number</pFeature><pFeature>Label</pFeature></Category>
<Category Name="Second"><Visibility>Expert</Visibility><pFeature>Mode</pFeature><pFeature>Ratio</pFeature>
  <pFeature>Inner</pFeature></Category>
<Category Name="Inner"><pFeature>Deep</pFeature><pFeature>Number</pFeature></Category>
<Integer Name="Number"><pValue>NumberReg</pValue><Min>-100</Min><pMax>Most</pMax></Integer>
<Integer Name="Deep"><pIsImplemented>Presence</pIsImplemented><pValue>DeepReg</pValue></Integer>
<Boolean Name="Flag"><pIsImplemented>Presence</pIsImplemented><pValue>FlagReg</pValue></Boolean>
<Command Name="Start"><pValue>StartReg</pValue><CommandValue>7</CommandValue></Command>
<StringReg Name="Label"><pIsImplemented>Presence</pIsImplemented><Address>0x80</Address><Length>16</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
  </StringReg>
<Enumeration Name="Mode"><EnumEntry Name="Off"><Value>0</Value></EnumEntry><EnumEntry Name="On"><Value>1</Value>
  </EnumEntry><EnumEntry Name="Auto"><Value>2</Value></EnumEntry><pValue>ModeReg</pValue></Enumeration>
<Float Name="Ratio"><pValue>Scaled</pValue><Min>0</Min><Max>50</Max></Float>
<Converter Name="Scaled"><FormulaTo>FROM * 4</FormulaTo><FormulaFrom>TO / 4</FormulaFrom><pValue>RatioReg</pValue>
  <Slope>Increasing</Slope></Converter>
<Integer Name="Most"><Value>100</Value></Integer><Integer Name="Presence"><Value>1</Value></Integer>)"
        + reg("NumberReg", 0) + reg("DeepReg", 8) + reg("FlagReg", 16) + reg("StartReg", 24) + reg("ModeReg", 32)
        + reg("RatioReg", 40);
}

/** A person at random, of whom is known whether an editor was opened, and whether anything was entered there. */
class Walk
{
public:
    explicit Walk(quint32 seed)
        : m_random(seed)
        , m_shown(walkNodes())
        , m_host(new QLineEdit(&m_shown.view))
    {
        m_shown.view.layout()->addWidget(m_host);
    }

    bool start()
    {
        const bool isShown = m_shown.show();
        m_shown.tree->setFocus();
        m_writes = m_shown.port.writeCount();
        return isShown;
    }

    /** What was wrong with it, or an empty text. */
    QString step()
    {
        m_isCamera = false;
        if (!m_shown.view.isVisible()) { // Escape
            m_shown.view.show();
            QApplication::setActiveWindow(&m_shown.view);
        }
        if (!focus())
            m_shown.tree->setFocus();
        m_hasEntry = m_hasEntry && editor();
        if (m_random.bounded(8) == 0)
            m_shown.tree->expandAll();
        const bool wasInTree = isInTree();
        const QString what = act();
        if (editor() && !wasInTree && !what.startsWith(QLatin1String("click")))
            return what + QLatin1String(": an editor took the focus");
        // What is entered counts when the editor closes at the latest, which some do when the event loop runs next.
        const bool mayWrite = m_hasEntry;
        QCoreApplication::processEvents();
        QToolTip::hideText();
        const quint64 writes = m_shown.port.writeCount();
        const bool hasWritten = writes != std::exchange(m_writes, writes);
        if (hasWritten && !mayWrite && !m_isCamera)
            return what + QLatin1String(": written without an entry");
        if (!editor())
            m_hasEntry = false;
        return {};
    }

    int entries = 0;

private:
    QWidget *focus() const { return QApplication::focusWidget(); }

    /** Where the keys go if that is in an editor. */
    QWidget *editor() const
    {
        QWidget *widget = focus();
        while (widget && widget->parentWidget() != m_shown.tree->viewport())
            widget = widget->parentWidget();
        return widget;
    }

    bool isInTree() const { return focus() && (focus() == m_shown.tree || editor()); }

    QModelIndex someCell()
    {
        QModelIndexList rows;
        for (QModelIndex i = m_shown.tree->model()->index(0, 0); i.isValid() && rows.size() < 99;
             i = m_shown.tree->indexBelow(i))
            rows += i;
        const QModelIndex row = rows.value(m_random.bounded(rows.size() + 1));
        return row.sibling(row.row(), m_random.bounded(4) > 0 ? 1 : 0);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        // Pop-ups and messages are for other tests.
        const bool opens = qobject_cast<QComboBox *>(focus()) || qobject_cast<QToolButton *>(focus());
        if (!focus() || (opens && key == Qt::Key_Space))
            return;
        const QWidget *const before = editor();
        const bool onTree = focus() == m_shown.tree;
        const bool isTyping = key < 0x1000000 && !modifiers;
        const bool isChoice = qobject_cast<const QComboBox *>(before) && key == Qt::Key_Home;
        const bool isEdit = isTyping || isChoice || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Backspace
            || key == Qt::Key_Delete || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
        // A key that goes into an editor is an entry; and so are Space in the value column, and Return on a button.
        const bool onButton = qobject_cast<const QAbstractButton *>(before) && key == Qt::Key_Return;
        const bool isSpace = onTree && key == Qt::Key_Space && m_shown.tree->currentIndex().column() == 1;
        if ((before && isEdit) || onButton || isSpace) {
            m_hasEntry = true;
            ++entries;
        }
        QTest::keyClick(focus(), Qt::Key(key), modifiers);
    }

    QString act()
    {
        static const int keys[] = {Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,   Qt::Key_F2,
                                   Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_PageUp,  Qt::Key_Home,
                                   Qt::Key_1,      Qt::Key_5,      Qt::Key_O,    Qt::Key_Space,   Qt::Key_Backspace,
                                   Qt::Key_Minus,  Qt::Key_Period, Qt::Key_N,    Qt::Key_Backtab, Qt::Key_Down};
        const int choice = m_random.bounded(24);
        if (choice < 13) {
            const int key = keys[m_random.bounded(int(std::size(keys)))];
            const QString where = focus() ? QString::fromLatin1(focus()->metaObject()->className()) : QString();
            press(key);
            return QStringLiteral("key %1 in %2").arg(key, 0, 16).arg(where);
        }
        if (choice < 17)
            return clickCell();
        return actElsewhere(choice);
    }

    QString clickCell()
    {
        const QModelIndex cell = someCell();
        if (!cell.isValid())
            return {};
        const QPoint place = m_shown.tree->visualRect(cell).center();
        QWidget *const child = m_shown.tree->viewport()->childAt(place);
        // Into an editor: a button executes, a combo box opens what the test does not choose from.
        if (child && (qobject_cast<QComboBox *>(child) || !m_shown.tree->viewport()->rect().contains(place)))
            return {};
        if (qobject_cast<QAbstractButton *>(child))
            m_hasEntry = true;
        if (child)
            QTest::mouseClick(child, Qt::LeftButton);
        else
            m_shown.click(cell);
        return QLatin1String("click on ") + cell.siblingAtColumn(0).data().toString();
    }

    QString actElsewhere(int choice)
    {
        const auto set = [this](const char *name, qint64 value) {
            m_isCamera = true; // registers are written by this only
            m_shown.node<GenApi::CIntegerPtr>(name)->SetValue(value);
        };
        switch (choice) {
        case 17:
            set("Presence", m_random.bounded(2));
            return QStringLiteral("presence");
        case 18:
            set("Most", m_random.bounded(2) ? 100 : 1000);
            return QStringLiteral("maximum");
        case 19:
            m_shown.map->Poll(5);
            return QStringLiteral("poll");
        case 20: {
            QWidget *const target = m_random.bounded(2) ? m_host : m_shown.part<QWidget>("filterLineEdit");
            target->setFocus();
            return QStringLiteral("another field");
        }
        case 21: {
            const char *const buttons[] = {"pbCollapseAll", "pbExpandAll", "pbExpandAll"};
            m_shown.part<QToolButton>(buttons[m_random.bounded(3)])->click();
            return QStringLiteral("button");
        }
        case 22:
            m_shown.view.setVisibility(OrvGui::Visibility(m_random.bounded(3)));
            m_shown.part<QLineEdit>("filterLineEdit")->setText(QString::fromLatin1(m_random.bounded(3) ? "" : "e"));
            return QStringLiteral("level and filter");
        default:
            if (QWidget *const over = editor()) {
                const QPoint pos = over->rect().center();
                QWheelEvent wheel(pos, over->mapToGlobal(pos), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(over, &wheel);
            }
            return QStringLiteral("wheel");
        }
    }

    QRandomGenerator m_random;
    ShownView m_shown;
    QLineEdit *const m_host;
    quint64 m_writes = 0;
    bool m_hasEntry = false;
    bool m_isCamera = false;
};

} // namespace

/** Whatever is pressed and clicked: no write without an entry made in the tree. */
class TestTreeWalk : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesEntriesOnly_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 12; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void writesEntriesOnly()
    {
        QFETCH(const quint32, seed);
        Walk walk(seed);
        QVERIFY(walk.start());
        for (int i = 0; i < 600; ++i) {
            const QString fault = walk.step();
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("step %1, %2").arg(i).arg(fault)));
        }
        QVERIFY(walk.entries > 0);
    }
};

ORV_TEST_MAIN(TestTreeWalk)
#include "tst_treewalk.moc"
