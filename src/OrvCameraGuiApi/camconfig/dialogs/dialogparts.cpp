// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>

#include <QWidget>

namespace OrvGui {

QPixmap sharpPixmap(const QString &path, const QWidget *widget)
{
    if (widget->devicePixelRatioF() > 1) {
        QString larger = path;
        larger.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
        const QPixmap pixmap(larger);
        if (!pixmap.isNull())
            return pixmap;
    }
    return QPixmap(path);
}

} // namespace OrvGui
