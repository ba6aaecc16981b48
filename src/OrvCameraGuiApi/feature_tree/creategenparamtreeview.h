// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/iorvgenparamtreeview.h>

/**
 * \file
 * Functions with C linkage that create and destroy feature tree views; this header needs no Qt.
 *
 * A view is a modeless window of its own and shown when it is returned. It is the caller's, whatever becomes of its
 * parent, and ends by DestroyGenParamTreeView(). \a nodeMap and \a params stay the caller's and outlive it, see
 * OrvGui::IOrvGenParamTreeView; they may be null.
 *
 * \a title is UTF-8, or a wide string of 32-bit characters; null is an empty title.
 *
 * \a parentWindowId is a native window that the new one stays in front of; 0 for none, and a number that is no window
 * does no harm. If it is a Qt window of this process, that becomes the parent widget. Any other window is left as it
 * is; the view outlives it.
 *
 * Without a Qt application object the functions make one, with Qt::AA_UseHighDpiPixmaps, and never destroy it; the
 * caller processes its events, see OrvProcessEvents(). LC_NUMERIC stays as it was. An application that makes its own
 * should set that attribute for icons that are sharp on every screen. The functions return null when the application
 * object has no widgets (QGuiApplication, QCoreApplication), when no display is set (DISPLAY, WAYLAND_DISPLAY,
 * QT_QPA_PLATFORM), and when none of them can be reached; Qt then says why on standard error. All calls come from the
 * GUI thread; none of them throws.
 */
extern "C" {

ORV_CAMERAGUIAPI_EXPORT OrvGui::IOrvGenParamTreeView *
CreateGenParamTreeViewForNodemapA(GenApi::INodeMap *nodeMap, const char *title, unsigned long parentWindowId);

ORV_CAMERAGUIAPI_EXPORT OrvGui::IOrvGenParamTreeView *
CreateGenParamTreeViewForNodemapW(GenApi::INodeMap *nodeMap, const wchar_t *title, unsigned long parentWindowId);

ORV_CAMERAGUIAPI_EXPORT OrvGui::IOrvGenParamTreeView *
CreateGenParamTreeViewForArrayA(OrvGenParam::Array *params, const char *title, unsigned long parentWindowId);

ORV_CAMERAGUIAPI_EXPORT OrvGui::IOrvGenParamTreeView *
CreateGenParamTreeViewForArrayW(OrvGenParam::Array *params, const wchar_t *title, unsigned long parentWindowId);

/** Whether the view is shown, or minimized: the user has not closed it. False for null. */
ORV_CAMERAGUIAPI_EXPORT bool IsGenParamTreeViewOpen(OrvGui::IOrvGenParamTreeView *view);

/** Shows a view that the user has closed, or brings one that is open to the front; null does nothing. */
ORV_CAMERAGUIAPI_EXPORT void ShowGenParamTreeView(OrvGui::IOrvGenParamTreeView *view);

/**
 * Closes and destroys the view; null does nothing. Also from a callback of the node map while a view is reading or
 * writing: then the view lets go of the node map and disappears at once, and is freed when its events are processed
 * next. C++ code must not delete the object there, see OrvGui::OrvGenParamTreeView.
 */
ORV_CAMERAGUIAPI_EXPORT void DestroyGenParamTreeView(OrvGui::IOrvGenParamTreeView *view);
}
