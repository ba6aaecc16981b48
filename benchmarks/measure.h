// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <vector>

/** Gives back what was freed, so that nothing which is measured next pays for the clean-up of what was before. */
void tidyHeap();

/** Bytes of the heap that are in use, including large blocks of their own. */
qint64 heapInUse();

/** The middle of the samples of one quantity. */
class Samples
{
public:
    void add(double sample) { m_samples.push_back(sample); }
    double median() const;

private:
    std::vector<double> m_samples;
};

/** Runs \a action and tells how long that took, in milliseconds. */
template <typename Action>
double millisecondsOf(Action &&action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) * 1e-6;
}

/** What was measured, a row each: ours, what it is compared with, their ratio and what that should be at most. */
class Table
{
public:
    /** \a bound 0: the ratio is only told. */
    void add(const QString &what, const QString &unit, double ours, double other, double bound);
    void print() const;

private:
    std::vector<QStringList> m_rows;
};

/** Ends the program with a message when what was measured is not what should have been. */
void require(bool condition, const char *what);
