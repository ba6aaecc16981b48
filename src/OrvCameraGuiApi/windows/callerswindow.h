#pragma once

#include <QString>

class QWidget;

/**
 * \file
 * What the functions with C linkage have in common: the application object, which their caller need not have, titles,
 * and the native window that ours are to belong to.
 */

/**
 * Whether widgets can be made; makes the application object that they need if there is none at all. None is made where
 * no display is set. The caller's LC_NUMERIC stays as it is: Qt would set it, and with it the caller's decimal sign.
 */
bool ensureApplication();

/** The title that a caller gave, as UTF-8 or as 32-bit characters; null is an empty one. */
QString titleFrom(const char *title);
QString titleFrom(const wchar_t *title);

/** The widget of this process that has this native window; null for 0 and for any other window. */
QWidget *widgetOf(unsigned long windowId);

/**
 * Shows the window, which is not shown yet. One without a parent widget stays in front of the native window with that
 * id, if there is one, whenever it is shown again, too; that window keeps its place and may go whenever its owner
 * likes.
 */
void showInFrontOf(QWidget &window, unsigned long callersWindowId);
