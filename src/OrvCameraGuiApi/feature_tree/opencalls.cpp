#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QPointer>

#include <utility>
#include <vector>

namespace {

struct Stack
{
    int calls = 0;
    std::vector<QPointer<QObject>> retired; ///< while there are calls
};

Stack &stack()
{
    static thread_local Stack stack;
    return stack;
}

} // namespace

OpenCalls::Call::Call()
{
    ++stack().calls;
}

OpenCalls::Call::~Call()
{
    if (--stack().calls > 0 || stack().retired.empty())
        return;
    const auto retired = std::exchange(stack().retired, {});
    for (const QPointer<QObject> &object : retired) {
        if (object)
            object->deleteLater();
    }
}

bool OpenCalls::any()
{
    return stack().calls > 0;
}

void OpenCalls::retire(QObject *object)
{
    if (!object)
        return;
    if (any())
        stack().retired.emplace_back(object);
    else
        object->deleteLater();
}
