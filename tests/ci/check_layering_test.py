#!/usr/bin/env python3
"""Runs .ci/check-layering on small source trees written for each case."""

import contextlib
import importlib.machinery
import importlib.util
import io
import os
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE_ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
SCRIPT = os.path.join(SOURCE_ROOT, ".ci", "check-layering")


def load_script():
    # In-process rather than one interpreter per case, so that the suite stays fast.
    loader = importlib.machinery.SourceFileLoader("check_layering", SCRIPT)
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


CHECK = load_script()

# Every include here is allowed.
GOOD_TREE = {
    "platform/krocore/utility/Flags.h": "#include <cstdint>\n",
    "platform/kls/Foundation.cpp": "#include <kls/Export.h>\n#include <krocore/utility/Flags.h>\n",
    "platform/kroui/backend/Backend.cpp":
        "#include <backends/headless/HeadlessBackend.h>\n#include <krocore/Export.h>\n",
    "platform/kroui/drawbot/raster/TextEngine.cpp":
        "#include <cairo.h>\n#include <pango/pangocairo.h>\n#include <fontconfig/fontconfig.h>\n"
        "#include <glib-object.h>\n",
    "platform/kroui/theme/ThemeReader.cpp": "#include <pugixml.hpp>\n",
    "platform/be/store/XMLFormat.cpp": "#include <pugixml.hpp>\n",
    "platform/krocore/proplist/PropListJSON.cpp": "#include <nlohmann/json.hpp>\n",
    "platform/backends/headless/HeadlessBackend.h": "#include <kroui/backend/Backend.h>\n",
    "platform/backends/sdl/SDLBackend.cpp": "#include <SDL2/SDL.h>\n#include <kroui/ui/Node.h>\n",
    "platform/kroworkspace/Frame.cpp": "#include <kroui/ui/Node.h>\n",
    "platform/kromediaui/ZoomBar.cpp":
        "#include <kroui/ui/Node.h>\n#include <kromediatypes/TickTime.h>\n",
    "zel/views/SubView.cpp":
        '#include "SubViewImpl.h"\n#include <kroworkspace/Frame.h>\n#include <kromediaui/ZoomBar.h>\n'
        "#include <be/store/XMLPropertyStore.h>\n#include <zel/Export.h>\n",
    "zel/views/SubViewImpl.h": "#pragma once\n",
    "tests/zel/views/SubViewTest.cpp":
        "#include <cairo.h>\n#include <pugixml.hpp>\n#include <backends/headless/HeadlessBackend.h>\n",
    "fuzz/zel/ShortcutSetFuzz.cpp": "#include <SDL.h>\n",
}


def write_tree(root, files):
    for path, text in files.items():
        full = os.path.join(root, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as out:
            out.write(text)


def run_check(*args):
    out = io.StringIO()
    with contextlib.redirect_stdout(out), contextlib.redirect_stderr(io.StringIO()):
        code = CHECK.main([SCRIPT, *args])
    return code, out.getvalue().splitlines()


class CheckLayering(unittest.TestCase):
    def run_check(self, extra_files):
        with tempfile.TemporaryDirectory() as root:
            write_tree(root, {**GOOD_TREE, **extra_files})
            return run_check(root)

    def assert_fails_with(self, extra_files, expected_lines):
        code, lines = self.run_check(extra_files)
        self.assertEqual(code, 1)
        self.assertEqual(len(lines), len(expected_lines), lines)
        for line, (location, words) in zip(lines, expected_lines):
            self.assertTrue(line.startswith(location + ": "), line)
            for word in words:
                self.assertIn(word, line)

    def test_allowed_includes_pass(self):
        self.assertEqual(self.run_check({}), (0, []))

    def test_this_repository_passes(self):
        self.assertEqual(run_check(), (0, []))

    def test_platform_never_includes_the_framework(self):
        self.assert_fails_with(
            {"platform/krocore/utility/Flags.h": "#pragma once\n\n#include <zel/commands/Commander.h>\n",
             "platform/kroui/ui/Node.cpp": '#include "../../../zel/views/SubViewImpl.h"\n',
             "platform/kls/Params.cpp": "#include <zel/Export.h>\n"},
            [("platform/kls/Params.cpp:1", ["<zel/Export.h>", "never includes zel/"]),
             ("platform/krocore/utility/Flags.h:3", ["<zel/commands/Commander.h>", "never includes zel/"]),
             ("platform/kroui/ui/Node.cpp:1", ["SubViewImpl.h", "never includes zel/"])])

    def test_framework_never_includes_backends_or_third_parties(self):
        self.assert_fails_with(
            {"zel/views/DC.cpp":
                 "#include <backends/headless/HeadlessBackend.h>\n#include <cairo.h>\n"
                 "#include <pango/pango.h>\n#include <pugixml.hpp>\n#include <SDL2/SDL.h>\n"
                 "#include <fontconfig/fontconfig.h>\n#include <glib.h>\n"
                 '#include "platform/backends/sdl/SDLBackend.h"\n'},
            [("zel/views/DC.cpp:1", ["backend header"]),
             ("zel/views/DC.cpp:2", ["Cairo", "platform/kroui/drawbot/raster/"]),
             ("zel/views/DC.cpp:3", ["Pango"]),
             ("zel/views/DC.cpp:4", ["pugixml", "platform/be/store/", "ThemeReader.cpp"]),
             ("zel/views/DC.cpp:5", ["SDL", "platform/backends/sdl/"]),
             ("zel/views/DC.cpp:6", ["fontconfig"]),
             ("zel/views/DC.cpp:7", ["GLib"]),
             ("zel/views/DC.cpp:8", ["backend header"])])

    def test_lower_and_neighbouring_libraries_stay_apart(self):
        self.assert_fails_with(
            {"platform/krocore/Forward.h": "#include <kroui/Export.h>\n",
             "platform/kls/Foundation.cpp": "#include <kroscripting/events/Event.h>\n",
             "platform/be/Forward.h": "#  include <kroui/Export.h>\n",
             "platform/kroui/ui/Node.h": "#include <kroworkspace/Frame.h>\n",
             "platform/kroworkspace/Frame.cpp": "#include <kromediatypes/TickTime.h>\n",
             "platform/backends/headless/HeadlessBackend.cpp": "#include <kls/Foundation.h>\n"},
            [("platform/backends/headless/HeadlessBackend.cpp:1", ["backends includes", "krocore, kroui"]),
             ("platform/be/Forward.h:1", ["be includes <kroui/Export.h>", "only kls, krocore, kromediatypes"]),
             ("platform/kls/Foundation.cpp:1", ["kls includes", "of kroscripting"]),
             ("platform/krocore/Forward.h:1", ["krocore includes <kroui/Export.h>", "nothing but itself"]),
             ("platform/kroui/ui/Node.h:1", ["kroui includes", "of kroworkspace"]),
             ("platform/kroworkspace/Frame.cpp:1", ["kroworkspace includes", "of kromediatypes"])])

    def test_third_parties_stay_in_their_corner(self):
        self.assert_fails_with(
            {"platform/kroui/theme/ThemeEngine.cpp": "#include <pugixml.hpp>\n",
             "platform/kroui/drawbot/Drawbot.cpp": '#include "cairo.h"\n',
             "platform/backends/headless/HeadlessWindows.cpp": "#include <SDL.h>\n",
             "platform/krocore/settings/ValueStore.cpp": "#include <nlohmann/json.hpp>\n"},
            [("platform/backends/headless/HeadlessWindows.cpp:1", ["SDL"]),
             ("platform/krocore/settings/ValueStore.cpp:1", ["nlohmann-json", "PropListJSON.cpp"]),
             ("platform/kroui/drawbot/Drawbot.cpp:1", ["Cairo"]),
             ("platform/kroui/theme/ThemeEngine.cpp:1", ["pugixml"])])

    def test_a_library_without_a_level_is_named(self):
        self.assert_fails_with({"platform/kroaudio/Mixer.cpp": "#include <krocore/Export.h>\n"},
                               [("platform/kroaudio/Mixer.cpp:1", ["no known library"])])


if __name__ == "__main__":
    unittest.main()
