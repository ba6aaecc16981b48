// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <QByteArray>
#include <QByteArrayList>

#include <memory>

/** A node map over memory, used through a small language in which a row of a table can say what a user does. */
class Session
{
public:
    enum class Memory {
        Zeros,
        Addresses ///< every byte is the low byte of its address
    };

    /** A description of \a nodes and a port "Device", which is connected. Throws like the loader. */
    explicit Session(const QByteArray &nodes, Memory memory = Memory::Zeros);

    /**
     * Does what stands between the blanks of \a script, N being a node's name, and joins the answers with blanks:
     *
     *     N?      the access mode
     *     N       the value as text         N*  the same without the cache      N&  whether the value is kept
     *     N+      the same with checks
     *     N:      value min..max, then /increment or {valid values}
     *     N=text  FromString: "ok"          N:=text  the same without checks
     *     N!      Execute: "ok"             N.  IsDone
     *     N-      InvalidateNode: "ok"
     *     #       what the port has been asked since the last #: r<reads>w<writes>
     *     @ms     Poll: "ok"
     *     ^       the nodes whose callbacks have been called since the last ^, sorted
     *
     * An exception's kind is an answer too: "!Access", "!OutOfRange" ...
     */
    QByteArray run(const QByteArray &script);

    template <typename Interface>
    Interface *get(const char *name) const
    {
        return dynamic_cast<Interface *>(map->GetNode(name));
    }

    OrvGenApi::MemoryPort port;
    std::unique_ptr<OrvGenApi::NodeMap> map;

private:
    QByteArray answer(const QByteArray &step);
    QByteArray counted();
    QByteArray fired();
    QByteArray ask(GenApi::INode *node, const QByteArray &what);
    void note(GenApi::INode *node) { m_fired << node->GetName().c_str(); }

    QByteArrayList m_fired;
    uint64_t m_reads = 0;
    uint64_t m_writes = 0;
};

/** What \a error is, without "Exception". */
QByteArray kindOf(const GenICam::GenericException &error);

/** The description around \a nodes. */
QByteArray description(const QByteArray &nodes);

/** An element \a kind with the name and content that are given. */
QByteArray node(const char *kind, const QByteArray &name, const QByteArray &content);

/** A register of 4 bytes, big endian, readable and writable unless \a more says otherwise. */
QByteArray reg(const char *kind, const QByteArray &name, const char *address, const QByteArray &more = {});

/** \a script run on \a nodes answers \a answers; \a what stands in the message otherwise. */
void check(const char *what, const QByteArray &nodes, const char *script, const char *answers,
           Session::Memory memory = Session::Memory::Zeros);
