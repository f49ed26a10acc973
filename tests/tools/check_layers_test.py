"""The layer check finds what breaks the table of rooms, and nothing else."""
import pathlib
import sys
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "cmake"))
import check_layers  # noqa: E402

ROOMS = check_layers.read_rooms((TOP / "docs/architecture.md").read_text(encoding="utf-8"))

# path below src/, the line, the fault expected or None
CASES = [
    ("engine/a.h", "#include <vector>", None),
    ("engine/a.h", '#include "engine/fault.h"', None),
    ("engine/a.cpp", '#include "forms/desk.h"', "engine may not use forms at all"),
    ("engine/a.cpp", "#include <QString>", "<QString> is not for engine"),
    ("engine/a.cpp", "#include <unistd.h>", "<unistd.h> is not for engine"),
    ("forms/a.h", "#include <lua.hpp>", "<lua.hpp> is not for forms"),
    ("forms/a.cpp", '#include "calculator/form1.h"', "forms may not use calculator at all"),
    ("calculator/a.h", '#include "graph/frm_func.h"', "calculator may not use graph in a header"),
    ("calculator/a.cpp", '#include "graph/frm_func.h"', None),
    ("calculator/a.cpp", '#include "table/frm_tabela.h"', "calculator may not use table at all"),
    ("calculus/a.cpp", '#include "desktop/binder.h"', "calculus may not use desktop at all"),
    ("mathpad/rtf/a.cpp", '#include "forms/desk.h"', "mathpad/rtf may not use forms at all"),
    ("mathpad/a.h", '#include "mathpad/rtf/document.h"', None),
    ("desktop/skin/a.h", "#include <QtWidgets/QWidget>", None),
    ("desktop/a.cpp", "#include <QtCore/qglobal.h>", None),
    ("desktop/a.cpp", '#include "ui_Form1.h"', None),
    ("desktop/a.cpp", '#include "graph/frm_func.h"', None),
    ("desktop/a.cpp", '#include "script/runner.h"', "desktop may not use script at all"),
    ("script/a.cpp", "#include <lua.hpp>", None),
    ("script/a.cpp", '#include "runner.h"', '"runner.h" does not begin with a room'),
    ("app/a.cpp", '#include "script/runner.h"', None),
    ("attic/a.cpp", "", "this folder is no room of docs/architecture.md"),
]


class CheckLayers(unittest.TestCase):
    def test_each_include_is_judged_by_the_table(self):
        for path, line, expected in CASES:
            with self.subTest(path=path, line=line):
                faults = [fault for _, fault in check_layers.check_file(path, line, ROOMS)]
                self.assertEqual(faults, [expected] if expected else [])

    def test_a_fault_is_told_with_its_line(self):
        found = list(check_layers.check_file("engine/a.h", "#pragma once\n\n#include <QString>\n", ROOMS))
        self.assertEqual(found, [(3, "<QString> is not for engine")])


if __name__ == "__main__":
    unittest.main()
