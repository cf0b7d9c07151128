#ifndef KEYREDEFADAPTER_HUD_H
#define KEYREDEFADAPTER_HUD_H

#include "keyredefadapter.h"

/// Key set 2, a key pad on an analogue line: it announces the control values of its keys to the framework,
/// and turns each key into one or two taps. Two keys have a long action, which comes with the first repeat
/// after 1499 ms.
class KeyRedefAdapter_HUD : public KeyRedefAdapter
{
    Q_OBJECT

public:
    /// Announces the key set.
    KeyRedefAdapter_HUD();

    void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) override;
};

#endif // KEYREDEFADAPTER_HUD_H
