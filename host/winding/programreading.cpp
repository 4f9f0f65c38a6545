// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/programreading.h"

#include <cstring>

BlockListener::~BlockListener() = default;

ProgramReading::ProgramReading(const MachineProfile &profile, BlockListener *listener)
    : m_interpreter(profile), m_model(profile), m_listener(listener)
{}

void ProgramReading::addBytes(const char *bytes, qint64 count)
{
    const char *const end = bytes + count;
    while (bytes < end) {
        const void *found = std::memchr(bytes, '\n', size_t(end - bytes));
        const char *lineEnd = static_cast<const char *>(found);
        if (!lineEnd || m_hasRest)
            hold(bytes, (lineEnd ? lineEnd : end) - bytes);
        else
            perform(m_reader.read(bytes, int(lineEnd - bytes)));
        if (!lineEnd)
            return;
        endHeld();
        bytes = lineEnd + 1;
    }
}

/// Keeps what may be the beginning of a line; of one that is too long, what shows that it is.
void ProgramReading::hold(const char *bytes, qint64 count)
{
    // A "\r" that stands last is none of the line: one more shows whether it does.
    const qint64 room = BlockReader::longestLine + 2 - m_rest.size();
    m_rest.append(bytes, int(qMin(room, count)));
    m_hasRest = true;
}

void ProgramReading::endHeld()
{
    if (!m_hasRest)
        return;
    m_hasRest = false;
    perform(m_reader.read(m_rest.constData(), m_rest.size()));
    m_rest.resize(0);
}

void ProgramReading::addLines(const QString &text)
{
    const QChar *const characters = text.constData();
    int begin = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0;
         end = text.indexOf(QLatin1Char('\n'), begin)) {
        addLine(characters + begin, end - begin);
        begin = end + 1;
    }
}

void ProgramReading::addLine(const QChar *text, int length)
{
    perform(m_reader.read(text, length));
}

void ProgramReading::finish()
{
    endHeld();
    m_model.finish();
    if (m_listener)
        m_listener->finish(m_model);
}

void ProgramReading::perform(const GCodeBlock &block)
{
    const WindingStep &step = m_interpreter.add(block);
    m_model.add(step);
    if (m_listener)
        m_listener->add(block, step, m_model);
}
