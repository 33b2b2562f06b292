// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <QStringList>
#include <QWidget>

#include <memory>

class SpearItem;

namespace Ui {
class Host;
}

/**
 * A host with a form, a resource and slots of its own, which tries whether the library works in it:
 * whether its signals arrive, by function and by name, its slots and commands do what they are for,
 * its resources are there and it draws.
 */
class Host : public QWidget
{
    Q_OBJECT

public:
    Host();
    ~Host() override;

    /** What does not work, a line each; empty when everything does. */
    QStringList findFaults();

Q_SIGNALS:
    /** Asks for a zoom value; connected to the editor by name. */
    void zoomWanted(int value);

private Q_SLOTS:
    void countSelection(bool selected);

private:
    void expect(bool works, const char *what);
    void tryResources();
    void trySignals();
    void tryCommands();
    void tryDialogs();
    void tryDrawing();

    FishModel m_model;
    std::unique_ptr<Ui::Host> m_form;
    SpearItem *m_bone = nullptr; // in the editor's scene
    QStringList m_faults;
    int m_selections = 0;
};
