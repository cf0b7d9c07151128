#ifndef KEYREDEFADAPTER_LIANBAOLAI_H
#define KEYREDEFADAPTER_LIANBAOLAI_H

#include "keyredefadapter.h"

/// Key set 1: three keys with a long action of their own, and previous and next, whose meaning depends on a
/// call and on the application in front. A key with a long action does the short or the long one, never both;
/// the long one comes with the first repeat after 1700 ms.
class KeyRedefAdapter_LianBaoLai : public KeyRedefAdapter
{
    Q_OBJECT

public:
    void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) override;

private:
    static void onPress(unsigned int keyCode, bool isAutoRepeat, unsigned int frontApp);
    static void onRelease();
    static void beginKey(unsigned int keyCode, unsigned int frontApp);
};

#endif // KEYREDEFADAPTER_LIANBAOLAI_H
