// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>
#include <QTimer>

#include <GenApi/INodeMap.h>

#include <string>
#include <vector>

/**
 * Lets values of a simulated camera change by themselves, step by step, to and fro: exposure and black level, by
 * whichever name the camera has them. The application is told as by a camera library that hears of it: its nodes are
 * invalidated.
 */
class Drift : public QObject
{
    Q_OBJECT

public:
    explicit Drift(QObject *parent = nullptr);

    /** That camera from now on; no value of it changes until start(). \a nodeMap may be null. */
    void setCamera(const std::string &id, GenApi::INodeMap *nodeMap);

    void start();
    void stop();

private:
    struct Feature
    {
        std::string name; ///< of its register
        int lowest;
        int highest;
        int step; ///< its sign tells the direction
    };

    void moveAll();
    void move(Feature &feature);

    std::string m_camera;
    GenApi::INodeMap *m_nodeMap = nullptr;
    std::vector<Feature> m_features;
    QTimer m_timer;
};
