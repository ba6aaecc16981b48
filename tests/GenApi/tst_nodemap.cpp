// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <OrvGenApi/testing/faults.h>

#include <orvtest.h>

#include <atomic>
#include <functional>
#include <thread>

using namespace GenApi;

namespace {

/** Says when it is called and when it is destroyed. */
class Probe final : public CNodeCallback
{
public:
    Probe(INode *node, ECallbackType type, std::function<void()> called, int &destroyed)
        : CNodeCallback(node, type)
        , m_called(std::move(called))
        , m_destroyed(destroyed)
    {
    }

    void operator()(ECallbackType type) const override
    {
        if (type == m_CallbackType)
            m_called();
    }
    void Destroy() override
    {
        ++m_destroyed;
        delete this;
    }

private:
    const std::function<void()> m_called;
    int &m_destroyed;
};

/** Fails as a device that goes away does. */
class FailingPort final : public IPort
{
public:
    EAccessMode GetAccessMode() const override
    {
        if (isMute)
            throw std::runtime_error("cable");
        return RW;
    }
    void Read(void *buffer, int64_t, int64_t length) override
    {
        fail();
        std::fill_n(static_cast<uint8_t *>(buffer), length, uint8_t(0));
    }
    void Write(const void *, int64_t, int64_t) override { fail(); }

    bool isBroken = false;
    bool isForeign = false;
    bool isMute = false;

private:
    void fail() const
    {
        if (isForeign)
            throw std::runtime_error("cable");
        if (isBroken)
            throw GenICam::TimeoutException("no answer", __FILE__, __LINE__);
    }
};

} // namespace

/** What a callback does; unlike a lambda that holds on to something it can be asked whether it is empty. */
using Deed = std::function<void(INode *)>;

/** The objects around the values: callbacks, ports, registers as bytes, several threads. */
class tst_NodeMap : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void callbacksKnowTheLock()
    {
        Session session(node("Integer", "N", "<Value>0</Value>"));
        QByteArray seen;
        const auto lockedFor = [&session](const char *yes, const char *no) {
            bool taken = false;
            std::thread([&] {
                taken = session.map->GetLock().TryLock();
                if (taken)
                    session.map->GetLock().Unlock();
            }).join();
            return taken ? no : yes;
        };
        INode *const number = session.map->GetNode("N");
        Register(number, Deed([&](INode *) { seen += lockedFor("locked ", "open "); }), cbPostOutsideLock);
        Register(number, Deed([&](INode *) { seen += lockedFor("locked ", "open "); }), cbPostInsideLock);
        session.run("N=1");
        QCOMPARE(seen, QByteArray("locked open "));
    }

    void callbacksMayRemoveCallbacks()
    {
        Session session(node("Integer", "N", "<Value>0</Value>"));
        INode *const number = session.map->GetNode("N");
        int destroyed = 0;
        QByteArray calls;
        CallbackHandleType first = 0;
        CallbackHandleType third = 0;
        first = number->RegisterCallback(new Probe(
            number, cbPostInsideLock,
            [&] {
                calls += "1";
                Deregister(third);
                Deregister(first);
                calls += QByteArray::number(destroyed); // not while it runs
            },
            destroyed));
        number->RegisterCallback(new Probe(
            number, cbPostInsideLock, [&] { calls += "2"; }, destroyed));
        third = number->RegisterCallback(new Probe(
            number, cbPostInsideLock, [&] { calls += "3"; }, destroyed));
        session.run("N=1 N=2");
        QCOMPARE(calls, QByteArray("1022"));
        QCOMPARE(destroyed, 2);
        QVERIFY(!number->DeregisterCallback(first));
        QVERIFY_EXCEPTION_THROWN(number->RegisterCallback(nullptr), GenICam::InvalidArgumentException);
        session.map.reset();
        QCOMPARE(destroyed, 3);
    }

    void callbacksMayThrow()
    {
        Session session(node("Integer", "N", "<Value>0</Value><PollingTime>1</PollingTime>"));
        INode *const number = session.map->GetNode("N");
        int calls = 0;
        Register(number, [](INode *) { throw GenICam::TimeoutException("first", __FILE__, __LINE__); });
        Register(number, [](INode *) { throw GenICam::AccessException("second", __FILE__, __LINE__); });
        Register(number, Deed([&](INode *) { ++calls; }), cbPostInsideLock);
        Register(number, Deed([&](INode *) { ++calls; }), cbPostOutsideLock);
        QCOMPARE(session.run("N=1 N @1 N-"), QByteArray("!Timeout 1 !Timeout !Timeout"));
        QCOMPARE(calls, 6); // all others are called nevertheless, in and outside the lock
        QVERIFY(session.map->GetLock().TryLock());
        session.map->GetLock().Unlock();
    }

    void portsMayFail()
    {
        Session session(reg("IntReg", "R", "0") + node("Integer", "N", "<Value>1</Value><pIsAvailable>C</pIsAvailable>")
                        + reg("IntReg", "C", "4", "<Cachable>NoCache</Cachable>"));
        FailingPort port;
        QVERIFY(session.map->connect(&port));
        QCOMPARE(session.run("^ R R& R=1 ^ R"), QByteArray("C,Device,N,R 0 kept ok R 1"));
        port.isBroken = true;
        // What the device holds after a failed write nobody knows.
        QCOMPARE(session.run("R R=2 ^ R& R N? N"), QByteArray("1 !Timeout R unknown !Timeout !Timeout 1"));
        port.isForeign = true;
        QCOMPARE(session.run("R R=2"), QByteArray("!Runtime !Runtime"));
        port.isMute = true;
        QCOMPARE(session.run("R? R"), QByteArray("!Runtime !Runtime"));
        port.isForeign = port.isBroken = port.isMute = false;
        QCOMPARE(session.run("R N? C=0 N?"), QByteArray("0 RW ok NA"));
    }

    void connectsAnotherPort()
    {
        Session session(reg("IntReg", "R", "0") + node("Integer", "N", "<pValue>R</pValue>")
                        + "<Port Name='Swap'><SwapEndianess>Yes</SwapEndianess></Port>"
                        + reg("IntReg", "S", "0x10", "<pPort>Swap</pPort>"));
        QCOMPARE(session.run("N=3 R"), QByteArray("ok 3"));
        OrvGenApi::MemoryPort other([](uint64_t) { return uint8_t(1); });
        QVERIFY(session.map->connect(&other, "Device"));
        QCOMPARE(session.run("N"), QByteArray("16843009"));
        QVERIFY(!session.map->connect(&other, "R"));
        QVERIFY(!session.map->connect(&other, "Nobody"));
        OrvGenApi::MemoryPort addresses([](uint64_t address) { return static_cast<uint8_t>(address); });
        QVERIFY(session.map->connect(&addresses, "Swap"));
        QCOMPARE(session.run("S"), QByteArray("319951120")); // 0x13121110: this port turns big endian round
        QVERIFY(session.map->connect(nullptr));
        QCOMPARE(session.run("N? N N:=1"), QByteArray("NI !Access !Access"));
        QVERIFY_EXCEPTION_THROWN(session.get<IPort>("Device")->Read(nullptr, 0, 0), GenICam::LogicalErrorException);
    }

    void registersAsBytes()
    {
        Session session(reg("IntReg", "R", "0x20", "<Length>2</Length>"), Session::Memory::Addresses);
        auto *const bytes = session.get<IRegister>("R");
        QCOMPARE(bytes->GetAddress(), int64_t(0x20));
        QCOMPARE(bytes->GetLength(), int64_t(2));
        uint8_t buffer[] = {0, 0, 0xFF};
        bytes->Get(buffer, 2);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(buffer), 3), QByteArray("\x20\x21\xFF"));
        bytes->Set(buffer + 1, 2);
        QCOMPARE(session.run("R ^"), QByteArray("8703 R")); // 0x21FF
        QVERIFY_EXCEPTION_THROWN(bytes->Get(buffer, 3), GenICam::OutOfRangeException);
        QVERIFY_EXCEPTION_THROWN(bytes->Set(buffer, 3), GenICam::OutOfRangeException);
        bytes->Set(buffer, 1); // the first byte only
        QCOMPARE(session.run("R"), QByteArray("8447")); // 0x20FF
        QVERIFY_EXCEPTION_THROWN(bytes->Get(nullptr, 2), GenICam::InvalidArgumentException);
    }

    void imposes()
    {
        Session session(node("Integer", "N", "<Value>1</Value><Max>9</Max>")
                        + node("Float", "F", "<Value>1</Value><Min>-1</Min>"));
        session.get<IInteger>("N")->ImposeMax(5);
        session.get<IInteger>("N")->ImposeMin(2);
        session.get<IFloat>("F")->ImposeMin(-7);
        QCOMPARE(session.run("N: N=6 N=1 N=2 F=-2"), QByteArray("1 2..5/1 !OutOfRange !OutOfRange ok !OutOfRange"));
        session.map->GetNode("N")->ImposeAccessMode(RO);
        session.map->GetNode("N")->ImposeVisibility(Guru);
        QCOMPARE(session.run("N? N=2 N"), QByteArray("RO !Access 2"));
        QCOMPARE(int(session.map->GetNode("N")->GetVisibility()), int(Guru));
        session.map->GetNode("N")->ImposeVisibility(Expert); // in place of the other, not on top of it
        QCOMPARE(int(session.map->GetNode("N")->GetVisibility()), int(Expert));
    }

    void severalThreads()
    {
        Session session(reg("IntReg", "R", "0")
                        + node("IntSwissKnife", "K", "<pVariable Name='A'>R</pVariable><Formula>A * 2</Formula>")
                        + reg("IntReg", "P", "4", "<PollingTime>1</PollingTime>"));
        INode *const watched = session.map->GetNode("K");
        std::atomic<int> odd{0};
        std::atomic<int> called{0};
        const auto work = [&](int offset) {
            for (int i = 0; i < 200; ++i) {
                const CallbackHandleType handle =
                    Register(watched, Deed([&](INode *) { ++called; }), cbPostOutsideLock);
                session.get<IInteger>("R")->SetValue(i + offset);
                odd += session.get<IInteger>("K")->GetValue() % 2 != 0;
                session.map->Poll(1);
                Deregister(handle);
            }
        };
        // Session's own callbacks note names without a lock of their own: they are called inside the map's.
        std::thread first(work, 0);
        std::thread second(work, 1000);
        first.join();
        second.join();
        QCOMPARE(odd.load(), 0);
        QVERIFY(called >= 400);
        const int value = session.run("R").toInt();
        QVERIFY(value == 199 || value == 1199);
    }
};

ORV_PLAIN_TEST_MAIN(tst_NodeMap)
#include "tst_nodemap.moc"
