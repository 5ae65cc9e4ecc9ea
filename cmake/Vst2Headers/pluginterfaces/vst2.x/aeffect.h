// The VST 2 interface under the name JUCE asks for: the free header of the FST project, with the
// true numbers of what it leaves unknown.
// SPDX-License-Identifier: GPL-3.0-or-later

// The free header gives an opcode it doesn't know a number above 100,000, which no host sends or
// understands, and an unknown flag the value 0. Those that JUCE uses are renamed while the header is
// read, and declared anew below. Like the header itself this file may be read inside a namespace.
#pragma once

#define audioMasterIOChanged unknown_audioMasterIOChanged
#define audioMasterUpdateDisplay unknown_audioMasterUpdateDisplay
#define effEditTop unknown_effEditTop
#define effConnectOutput unknown_effConnectOutput
#define effConnectInput unknown_effConnectInput
#define effSetBypass unknown_effSetBypass
#define effGetTailSize unknown_effGetTailSize
#define effIdle unknown_effIdle
#define effKeysRequired unknown_effKeysRequired
#define effGetNumMidiInputChannels unknown_effGetNumMidiInputChannels
#define effGetNumMidiOutputChannels unknown_effGetNumMidiOutputChannels
#define kVstMaxLabelLen size_of_label
#define kVstMaxShortLabelLen size_of_shortLabel
#define kVstPinIsActive unknown_kVstPinIsActive
#define kVstPinIsStereo unknown_kVstPinIsStereo
#define kVstPinUseSpeaker unknown_kVstPinUseSpeaker

#include <pluginterfaces/fst/aeffect.h>

#undef audioMasterIOChanged
#undef audioMasterUpdateDisplay
#undef effEditTop
#undef effConnectOutput
#undef effConnectInput
#undef effSetBypass
#undef effGetTailSize
#undef effIdle
#undef effKeysRequired
#undef effGetNumMidiInputChannels
#undef effGetNumMidiOutputChannels
#undef kVstMaxLabelLen
#undef kVstMaxShortLabelLen
#undef kVstPinIsActive
#undef kVstPinIsStereo
#undef kVstPinUseSpeaker

// From the plug-in to the host.
constexpr auto audioMasterIOChanged = static_cast<t_fstHostOpcode> (13);
constexpr auto audioMasterUpdateDisplay = static_cast<t_fstHostOpcode> (42);

// From the host to the plug-in.
enum
{
    effEditTop = 20,
    effConnectOutput = 31,
    effConnectInput = 32,
    effSetBypass = 44,
    effGetTailSize = 52,
    effIdle = 53,
    effKeysRequired = 57,
    effGetNumMidiInputChannels = 78,
    effGetNumMidiOutputChannels = 79
};

// JUCE writes a pin's texts with a null byte after as many bytes as these say: one less than the
// fields hold.
enum
{
    kVstMaxLabelLen = 63,
    kVstMaxShortLabelLen = 7
};

// Flags of a pin's properties.
enum
{
    kVstPinIsActive = 1,
    kVstPinIsStereo = 2,
    kVstPinUseSpeaker = 4
};
