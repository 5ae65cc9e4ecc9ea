#!/usr/bin/env python3
"""Plants violations in small source trees and sees scripts/check-layers find each of them."""
# SPDX-License-Identifier: GPL-3.0-or-later

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-layers"

# A tree in which every kind of permitted include occurs.
CLEAN = {
    "framework/core/Param.h": "#pragma once\n#include <juce_data_structures/x.h>\n",
    "framework/core/Relaxed.h": "#include <atomic>\n",
    "framework/core/PluginProcessor.h": '#pragma once\n#include "framework/core/Param.h"\n',
    "framework/core/PluginProcessor.cpp": '#include "framework/core/PluginProcessor.h"\n'
                                          '#include "framework/presets/Files.h"\n',
    "framework/presets/Files.h": '#include "framework/core/Param.h"\n',
    "framework/midi/Mapper.h": '#include "framework/presets/Files.h"\n',
    "framework/services/Strings.h": "#include <map>\n",
    "framework/gui/Editor.h": '#include "framework/services/Strings.h"\n'
                              '#include "framework/core/PluginProcessor.h"\n',
    "framework/dsp/Gain.h": "#include <juce_audio_basics/juce_audio_basics.h>\n#include <cmath>\n",
    "framework/dsp/DryWetProcessor.h": '#include "framework/core/Param.h"\n',
    "product/dsp/Drive.h": '#include "framework/dsp/Gain.h"\n#include <juce_core/juce_core.h>\n'
                           '#include "framework/core/Relaxed.h"\n',
    "product/Processor.cpp": '#include "framework/core/PluginProcessor.h"\n'
                             '#include "product/dsp/Drive.h"\n'
                             '#include "BinaryData.h"\n',
    "tools/render/Main.cpp": '#include "product/dsp/Drive.h"\n',
    "tests/Check.h": '#include "framework/gui/Editor.h"\n',
}

# Name, file, its text, and what must be said of it, with the line.
VIOLATIONS = [
    ("framework includes product", "framework/gui/Knob.h",
     '\n#include "product/dsp/Drive.h"\n',
     "framework/gui/Knob.h:2: framework/gui may not include product/dsp/Drive.h"),
    ("core includes gui", "framework/core/Frame.cpp", '#include "framework/gui/Editor.h"\n',
     "framework/core/Frame.cpp:1: framework/core may not include framework/gui/Editor.h"),
    ("core includes a manager without being excepted", "framework/core/Other.cpp",
     '#include "framework/presets/Files.h"\n',
     "framework/core/Other.cpp:1: framework/core may not include framework/presets/Files.h"),
    ("the processor's header isn't excepted", "framework/core/PluginProcessor.h",
     '#include "framework/midi/Mapper.h"\n',
     "framework/core/PluginProcessor.h:1: framework/core may not include framework/midi/Mapper.h"),
    ("the processor's exception stops at gui", "framework/core/PluginProcessor.cpp",
     '#include "framework/gui/Editor.h"\n',
     "framework/core/PluginProcessor.cpp:1: framework/core may not include framework/gui/Editor.h"),
    ("services include gui", "framework/services/Web.h", '#include "framework/gui/Editor.h"\n',
     "framework/services/Web.h:1: framework/services may not include framework/gui/Editor.h"),
    ("a stage looks up a parameter", "product/dsp/Crush.cpp", '#include "framework/core/Param.h"\n',
     "product/dsp/Crush.cpp:1: product/dsp may not include framework/core/Param.h"),
    ("dry and wet show their processor to all", "framework/dsp/DryWetProcessor.h",
     '#include "framework/core/PluginProcessor.h"\n',
     "framework/dsp/DryWetProcessor.h:1: framework/dsp may not include "
     "framework/core/PluginProcessor.h"),
    ("a stage includes a large JUCE module", "product/dsp/Crush.cpp",
     "  #  include <juce_gui_basics/juce_gui_basics.h>\n",
     "product/dsp/Crush.cpp:1: product/dsp includes of JUCE only juce_core and juce_audio_basics: "
     "juce_gui_basics/juce_gui_basics.h"),
    ("a stage includes all of JUCE", "framework/dsp/Gain.h", "#include <JuceHeader.h>\n",
     "framework/dsp/Gain.h:1: framework/dsp includes of JUCE only juce_core and "
     "juce_audio_basics: JuceHeader.h"),
    ("a tool includes the tests", "tools/render/Main.cpp", '#include "tests/Check.h"\n',
     "tools/render/Main.cpp:1: tools may not include tests/Check.h"),
    ("a rule is dodged by a path beside the file", "framework/core/Frame.cpp",
     '#include "../gui/Editor.h"\n',
     'framework/core/Frame.cpp:1: "../gui/Editor.h" should be written from the root: '
     '"framework/gui/Editor.h"'),
    ("a rule is dodged by a path with dots", "framework/core/Frame.cpp",
     '#include "framework/core/../gui/Editor.h"\n',
     'framework/core/Frame.cpp:1: "framework/core/../gui/Editor.h" should be written from the '
     'root: "framework/gui/Editor.h"'),
    ("a rule is dodged by angle brackets", "framework/core/Frame.cpp",
     "#include <framework/gui/Editor.h>\n",
     "framework/core/Frame.cpp:1: framework/core may not include framework/gui/Editor.h"),
    ("a rule is dodged by a macro", "framework/core/Frame.cpp", "#include EDITOR\n",
     "framework/core/Frame.cpp:1: an include by macro can't be checked"),
    ("a file is missing", "product/Processor.cpp", '#include "product/Nothing.h"\n',
     "product/Processor.cpp:1: there is no file product/Nothing.h"),
    ("a folder has no rules", "framework/misc/Junk.h", "#include <map>\n",
     "framework/misc/Junk.h:1: this folder has no place in the layers (see ROOMS)"),
    ("a file includes itself", "product/Self.h", '\n#include "product/Self.h"\n',
     "product/Self.h:2: include cycle: product/Self.h -> product/Self.h"),
    ("two files include each other", "framework/core/Param.h",
     '#pragma once\n#include "framework/core/PluginProcessor.h"\n',
     "framework/core/Param.h:2: include cycle: framework/core/Param.h -> "
     "framework/core/PluginProcessor.h -> framework/core/Param.h"),
]


class CheckLayersTest(unittest.TestCase):
    def run_on(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, SCRIPT, folder], text=True, capture_output=True,
                                 check=False)
        return run.returncode, run.stdout.splitlines()

    def test_permitted_includes_pass(self):
        code, lines = self.run_on(CLEAN)
        self.assertEqual((code, lines), (0, ["13 files keep to their layers"]))

    def test_each_planted_violation_is_the_only_one_found(self):
        for name, file, text, message in VIOLATIONS:
            with self.subTest(name):
                code, lines = self.run_on({**CLEAN, file: text})
                self.assertEqual((code, lines), (1, [message]))

    def test_a_longer_cycle_is_found_once(self):
        ring = {f"product/R{i}.h": f'#include "product/R{(i + 1) % 4}.h"\n' for i in range(4)}
        code, lines = self.run_on({**CLEAN, **ring})
        self.assertEqual(code, 1)
        self.assertEqual(len(lines), 1)
        for file in ring:
            self.assertIn(file, lines[0])

    def test_an_empty_tree_is_no_success(self):
        code, _ = self.run_on({})
        self.assertEqual(code, 2)


if __name__ == "__main__":
    unittest.main()
