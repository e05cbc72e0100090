#pragma once

#include <QMenuBar>

// Makes the application's menu bar: Application, Edit, Window and Help with the usual entries. The
// titles are localisation keys until localizeMenu() has replaced them.
QMenuBar *makeMainMenu(QWidget *parent);

// Replaces every title of the menus and of their entries by its text.
void localizeMenu(QMenuBar *bar);

// A further bar with the same menus, for another window.
QMenuBar *sharedMainMenu(const QMenuBar *bar, QWidget *parent);
