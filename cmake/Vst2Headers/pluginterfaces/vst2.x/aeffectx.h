// The extended part of the VST 2 interface; all of it stands in the first header.
// SPDX-License-Identifier: GPL-3.0-or-later
#include <pluginterfaces/fst/aeffectx.h>
