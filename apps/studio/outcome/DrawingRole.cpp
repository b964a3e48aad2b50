#include "DrawingRole.h"

#include "BitrateBar.h"
#include "SizeDrawing.h"

#include <QAccessibleWidget>

namespace Vexlor::Studio
{

namespace
{

// Asked for each class that an object is of.
QAccessibleInterface* PictureOf(const QString& className, QObject* object)
{
    const bool isDrawing = className == QLatin1String(SizeDrawing::staticMetaObject.className()) ||
                           className == QLatin1String(BitrateBar::staticMetaObject.className());
    return isDrawing ? new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Graphic) : nullptr;
}

} // namespace

void TellThatDrawingsArePictures()
{
    static const bool s_isTold = [] // once for the program
    {
        QAccessible::installFactory(PictureOf);
        return true;
    }();
    static_cast<void>(s_isTold);
}

} // namespace Vexlor::Studio
