// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMREADING_H
#define PROGRAMREADING_H

#include "base/filarixhostglobal.h"
#include "winding/windingmodel.h"

#include <QByteArray>
#include <QString>

/// Who hears each block of a program while it is read, in order.
class FILARIX_HOST_EXPORT BlockListener
{
public:
    virtual ~BlockListener();

    /// \a model has taken the step by then. All three belong to the caller.
    virtual void add(const GCodeBlock &block, const WindingStep &step,
                     const WindingModel &model) = 0;
    /// There are no more blocks; \a model is finished.
    virtual void finish(const WindingModel &model) = 0;
};

/// Reads, performs and winds a program in one pass, from pieces of text of any size. Keeps no line.
class FILARIX_HOST_EXPORT ProgramReading
{
public:
    /// \a listener may be null, and must live as long as pieces come.
    explicit ProgramReading(const MachineProfile &profile, BlockListener *listener = nullptr);

    /// A piece of a file. Lines end in "\n", or in "\r\n".
    void addBytes(const char *bytes, qint64 count);
    /// A piece of a document: whole lines, each of which ends in "\n".
    void addLines(const QString &text);
    /// One line, without its end.
    void addLine(const QChar *text, int length);
    /// The program is at its end: also of a last line without an end.
    void finish();

    const WindingModel &model() const { return m_model; }
    /// Lines read so far.
    int lines() const { return m_reader.line(); }

private:
    void hold(const char *bytes, qint64 count);
    void endHeld();
    void perform(const GCodeBlock &block);

    BlockReader m_reader;
    ProgramInterpreter m_interpreter;
    WindingModel m_model;
    BlockListener *m_listener;
    /// A line whose end has not come yet; of one that is too long to be read, the beginning.
    QByteArray m_rest;
    bool m_hasRest = false;
};

#endif // PROGRAMREADING_H
