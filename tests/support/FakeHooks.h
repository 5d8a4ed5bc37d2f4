#pragma once

// Fake servers with knobs. A test sees the fakes of those modules whose faces it links.

#if __has_include("ModMsgHookIf.h")
#include "FakeMsgHook.h"
#endif
#if __has_include("ModGuiHookIf.h")
#include "FakeGuiHook.h"
#endif
#if __has_include("ModPrjHookIf.h")
#include "FakePrjHook.h"
#endif
#if __has_include("ModSourcesHookIf.h")
#include "FakeSourcesHook.h"
#endif
#if __has_include("ModCfgAppHookIf.h")
#include "FakeCfgAppHook.h"
#endif
#if __has_include("ModConfigHookIf.h") || __has_include("ModActionHookIf.h") ||                                        \
                                                        __has_include("ModHlpHookIf.h") ||                             \
                                                                      __has_include("ModScriptHookIf.h")
#include "FakeSmallHooks.h"
#endif
