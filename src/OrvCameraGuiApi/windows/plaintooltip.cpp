#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QTextDocument>

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}
