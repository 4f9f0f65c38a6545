// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HEARER_H
#define HEARER_H

#include "winding/programreading.h"

#include <QThread>

/// What a review's listener heard.
class Hearer : public BlockListener
{
public:
    void add(const GCodeBlock &block, const WindingStep &step, const WindingModel &model) override
    {
        isInOrder = isInOrder && block.line == blocks + 1 && step.line == block.line
                    && model.totals().lines == block.line;
        words += block.wordCount;
        thread = QThread::currentThread();
        ++blocks;
    }
    void finish(const WindingModel &model) override
    {
        ++finished;
        turns = model.totals().turns;
    }

    int blocks = 0;
    int words = 0;
    int finished = 0;
    double turns = 0;
    bool isInOrder = true;
    QThread *thread = nullptr;
};

inline QByteArray smallProgram()
{
    return "G21\nG00 X0 Y10\nS600 M03\nG33 X10 K0.5\nG01 Y10.5 F600\nG33 X0 K0.5\nM05\nM30\n";
}

#endif // HEARER_H
