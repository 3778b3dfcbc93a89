#pragma once
// The generated protocol headers, readable from C++ (the layer shell names an argument
// "namespace").
#include "ext-session-lock-v1-client.h"
#include "keyboard-shortcuts-inhibit-unstable-v1-client.h"
#include "wlr-input-inhibitor-unstable-v1-client.h"
#define namespace namespace_
#include "wlr-layer-shell-unstable-v1-client.h"
#undef namespace
