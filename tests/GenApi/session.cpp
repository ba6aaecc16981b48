// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <QtTest>

#include <algorithm>

using namespace GenApi;

namespace {

OrvGenApi::MemoryPort::Background background(Session::Memory memory)
{
    if (memory == Session::Memory::Zeros)
        return {};
    return [](uint64_t address) { return static_cast<uint8_t>(address); };
}

QByteArray text(double value)
{
    return QByteArray::number(value);
}

QByteArray text(int64_t value)
{
    return QByteArray::number(qlonglong(value));
}

QByteArray text(uint64_t value)
{
    return QByteArray::number(qulonglong(value));
}

template <typename Vector>
QByteArray listed(const Vector &values)
{
    QByteArrayList texts;
    for (std::size_t i = 0; i < values.size(); ++i)
        texts << text(values[i]);
    return '{' + texts.join(',') + '}';
}

template <typename Number>
QByteArray limits(Number *number)
{
    const QByteArray range = text(number->GetMin()) + ".." + text(number->GetMax());
    switch (number->GetIncMode()) {
    case fixedIncrement:
        return range + '/' + text(number->GetInc());
    case listIncrement:
        return range + listed(number->GetListOfValidValues());
    default:
        return range;
    }
}

} // namespace

Session::Session(const QByteArray &nodes, Memory memory)
    : port(background(memory))
    , map(OrvGenApi::NodeMap::fromString(description(nodes).toStdString()))
{
    map->connect(&port);
    NodeList_t all;
    map->GetNodes(all);
    for (INode *each : all)
        Register(each, *this, &Session::note);
}

QByteArray Session::run(const QByteArray &script)
{
    QByteArrayList answers;
    for (const QByteArray &step : script.split(' ')) {
        try {
            answers << answer(step);
        } catch (const GenICam::GenericException &error) {
            answers << '!' + kindOf(error);
        }
    }
    return answers.join(' ');
}

QByteArray Session::answer(const QByteArray &step)
{
    if (step == "#")
        return counted();
    if (step == "^")
        return fired();
    if (step.startsWith('@')) {
        map->Poll(step.mid(1).toLongLong());
        return "ok";
    }
    const auto equals = step.indexOf('=');
    if (equals >= 0) {
        const bool verify = step[equals - 1] != ':';
        const QByteArray name = step.left(verify ? equals : equals - 1);
        CValuePtr(map->GetNode(name.constData()))->FromString(step.mid(equals + 1).constData(), verify);
        return "ok";
    }
    const bool isPlain = isalnum(static_cast<unsigned char>(step.back()));
    INode *const node = map->GetNode((isPlain ? step : step.chopped(1)).constData());
    return ask(node, isPlain ? QByteArray() : step.right(1));
}

QByteArray Session::ask(INode *node, const QByteArray &what)
{
    static const char *const accessNames[] = {"NI", "NA", "WO", "RO", "RW"};
    if (what == "?")
        return accessNames[CNodePtr(node)->GetAccessMode()];
    if (what == "&")
        return CValuePtr(node)->IsValueCacheValid() ? "kept" : "unknown";
    if (what == "!") {
        CCommandPtr(node)->Execute();
        return "ok";
    }
    if (what == ".")
        return CCommandPtr(node)->IsDone() ? "done" : "running";
    if (what == "-") {
        CNodePtr(node)->InvalidateNode();
        return "ok";
    }
    const QByteArray value = CValuePtr(node)->ToString(what == "+", what == "*").c_str();
    if (what != ":")
        return value;
    const CFloatPtr number(node);
    return value + ' ' + (number.IsValid() ? limits<IFloat>(number) : limits<IInteger>(CIntegerPtr(node)));
}

QByteArray Session::counted()
{
    const QByteArray result = 'r' + text(port.readCount() - m_reads) + 'w' + text(port.writeCount() - m_writes);
    m_reads = port.readCount();
    m_writes = port.writeCount();
    return result;
}

QByteArray Session::fired()
{
    QByteArrayList names;
    names.swap(m_fired);
    std::sort(names.begin(), names.end());
    return names.join(',');
}

QByteArray kindOf(const GenICam::GenericException &error)
{
    const QByteArray text = error.what();
    const auto end = text.lastIndexOf("Exception thrown");
    const auto start = text.lastIndexOf(' ', end) + 1;
    return text.mid(start, end - start);
}

QByteArray description(const QByteArray &nodes)
{
    return "<RegisterDescription>" + nodes + "<Port Name='Device'/></RegisterDescription>";
}

QByteArray node(const char *kind, const QByteArray &name, const QByteArray &content)
{
    return QByteArray("<") + kind + " Name='" + name + "'>" + content + "</" + kind + '>';
}

QByteArray reg(const char *kind, const QByteArray &name, const char *address, const QByteArray &more)
{
    return node(kind, name,
                QByteArray("<Address>") + address
                    + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
                      "<Endianess>BigEndian</Endianess>"
                    + more);
}

void check(const char *what, const QByteArray &nodes, const char *script, const char *answers, Session::Memory memory)
{
    const QByteArray title = QByteArray(what) + ": ";
    try {
        QCOMPARE(title + Session(nodes, memory).run(script), title + answers);
    } catch (const GenICam::GenericException &error) {
        QFAIL(title + error.what());
    }
}
