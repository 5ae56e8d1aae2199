#!/usr/bin/env python3
"""The check scripts of tools/ find what they are for, each tried in a small tree of its own."""
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parent.parent.parent / "tools"
TABLE = """low:
high: low
----
platform/qt: low
platform/qt < Qt
"""


class Tree:
    """A repository with the tools and the files given, by path."""

    def __init__(self, files):
        self.folder = tempfile.TemporaryDirectory()
        self.root = pathlib.Path(self.folder.name)
        (self.root / "tools").mkdir()
        for tool in TOOLS.glob("*.py"):
            shutil.copy(tool, self.root / "tools")
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        subprocess.run(["git", "init", "-q"], cwd=self.root, check=True)
        subprocess.run(["git", "add", "-A"], cwd=self.root, check=True)

    def run(self, tool, *arguments):
        done = subprocess.run([sys.executable, self.root / "tools" / tool, *arguments], capture_output=True, text=True,
                              cwd=self.root)
        self.folder.cleanup()
        return done.returncode, done.stderr + done.stdout


class Includes(unittest.TestCase):
    def check(self, **more):
        files = {"tools/include_table.txt": TABLE, "vexel/export.h": "#pragma once\n",
                 "vexel/low/a.h": '#pragma once\n#include "vexel/export.h"\n#include <vector>\n',
                 "vexel/low/a.cpp": '#include "vexel/low/a.h"\n#include <string>\n',
                 "vexel/high/b.h": '#pragma once\n#include "vexel/low/a.h"\n',
                 "vexel/platform/qt/q.cpp": "#include <QWidget>\n"}
        files.update(more.get("files", {}))
        return Tree(files).run("check_includes.py")

    def expect(self, part, files):
        code, text = self.check(files=files)
        self.assertEqual(code, 1, text)
        self.assertIn(part, text)
        self.assertIn(" 1 errors", text)

    def test_a_clean_tree_passes(self):
        self.assertEqual(self.check()[0], 0)

    def test_a_folder_may_not_include_one_above_it(self):
        self.expect("low may not include high", {"vexel/low/c.h": '#pragma once\n#include "vexel/high/b.h"\n'})

    def test_a_table_with_a_circle_is_refused(self):
        self.expect("does not stand above it", {"tools/include_table.txt": TABLE.replace("low:", "low: high", 1)})

    def test_only_the_backend_includes_qt(self):
        self.expect("<QString> is not open to high", {"vexel/high/c.h": "#pragma once\n#include <QString>\n"})

    def test_private_headers_stay_in_their_folder(self):
        self.expect("belongs to low alone", {"vexel/low/detail/d.h": "#pragma once\n",
                                             "vexel/high/c.cpp": '#include "vexel/low/detail/d.h"\n'})

    def test_installed_headers_include_no_private_ones(self):
        self.expect("is not installed", {"vexel/low/detail/d.h": "#pragma once\n",
                                         "vexel/low/c.h": '#pragma once\n#include "vexel/low/detail/d.h"\n'})

    def test_headers_in_a_circle_are_found(self):
        self.expect("includes itself through", {"vexel/low/c.h": '#pragma once\n#include "vexel/low/d.h"\n',
                                                "vexel/low/d.h": '#pragma once\n#include "vexel/low/c.h"\n'})

    def test_a_source_includes_its_own_header_first(self):
        self.expect("own header", {"vexel/low/a.cpp": '#include <string>\n#include "vexel/low/a.h"\n'})

    def test_a_header_starts_with_pragma_once(self):
        self.expect("#pragma once", {"vexel/low/c.h": "#include <string>\n"})

    def test_a_folder_that_the_table_does_not_know_is_refused(self):
        self.expect("not in the table", {"vexel/new/c.h": "#pragma once\n"})


class Text(unittest.TestCase):
    def expect(self, part, line):
        code, text = Tree({"a.txt": f"one\n{line}\n"}).run("check_text.py")
        self.assertEqual(code, 1, text)
        self.assertIn(f"a.txt:2: {part}", text)

    def test_plain_text_passes(self):
        self.assertEqual(Tree({"a.txt": "one\ntwo /usr/bin/env build/home/x\n"}).run("check_text.py")[0], 0)

    def test_a_path_of_one_machine_is_found(self):
        self.expect("a path of one machine", "cd /" + "home/somebody/vexel")

    def test_the_address_of_a_host_is_found(self):
        self.expect("the address of a host", "https:" + "//example.org/x")

    def test_blanks_at_the_end_are_found(self):
        self.expect("blanks", "two ")

    def test_the_marks_of_a_merge_are_found(self):
        self.expect("the mark of a merge", "<" * 7 + " HEAD")
        self.expect("the mark of a merge", ">" * 7 + " other")

    def test_a_last_line_without_end_is_found(self):
        self.assertEqual(Tree({"a.txt": "one"}).run("check_text.py")[0], 1)


class Snippets(unittest.TestCase):
    def check(self, readme):
        tree = Tree({"README.md": readme, "examples/hello/main.cpp": "int main() {}\n", "vexel/low/a.h":
                     "#pragma once\nnamespace vexel\n{\ninline int Two() { return 2; }\n} // namespace vexel\n",
                     "vexel/testing/test_kit.h": "#pragma once\nnamespace vexel::test\n{\n}\n"})
        command = [{"directory": str(tree.root), "file": str(tree.root / "examples/hello/main.cpp"),
                    "command": f"env A=1 c++ -I{tree.root} -std=c++20 -o x -c main.cpp"}]
        (tree.root / "b").mkdir()
        (tree.root / "b/compile_commands.json").write_text(json.dumps(command))
        return tree.run("check_snippets.py", "b")

    def test_statements_compile_with_what_is_given(self):
        code, text = self.check("<!-- given: int one -->\n```cpp compile\nint three = one + Two();\n```\n")
        self.assertEqual(code, 0, text)

    def test_an_error_is_found_with_its_place(self):
        code, text = self.check("# Title\n\n```cpp compile\nint three = Three();\n```\n")
        self.assertEqual(code, 1)
        self.assertIn("README.md:4", text)

    def test_a_file_that_differs_is_found(self):
        code, text = self.check("<!-- file: examples/hello/main.cpp -->\n```cpp compile\n#include <new>\n```\n")
        self.assertEqual(code, 1)
        self.assertIn("differs from examples/hello/main.cpp", text)

    def test_documents_without_any_code_are_no_success(self):
        self.assertEqual(self.check("# Title\n")[0], 1)

    def test_a_piece_of_a_test_that_does_not_compile_is_found_with_its_place(self):
        code, text = self.check("# Title\n\n```cpp test\nint const three = Three();\n```\n")
        self.assertEqual(code, 1)
        self.assertIn("README.md:4", text)
        self.assertIn("1 pieces of a test program, 1 errors", text)


class Links(unittest.TestCase):
    def check(self, link, more="# A `title`, two\n\n# Again\n\n# Again\n"):
        return Tree({"a/one.md": f"```\n[code](nowhere)\n```\n{link}\n", "a/two.md": more}).run("check_links.py")

    def test_links_to_files_folders_and_headings_pass(self):
        for link in ("two.md", "../a/two.md", "..", "two.md#a-title-two", "two.md#again-1", "https:" + "//www.w3.org/"):
            code, text = self.check(f"[x]({link}) and [y](two.md)")
            self.assertEqual(code, 0, text)

    def test_a_link_to_a_file_that_is_not_there_is_found(self):
        code, text = self.check("[x](three.md)")
        self.assertEqual(code, 1)
        self.assertIn("a/one.md:4: no such file: three.md", text)

    def test_a_link_to_a_heading_that_is_not_there_is_found(self):
        for link in ("two.md#nothing", "#own"):
            code, text = self.check(f"[x]({link})")
            self.assertEqual(code, 1)
            self.assertIn(f"no such heading: {link}", text)

    def test_a_link_whose_text_goes_over_the_end_of_a_line_is_found(self):
        code, text = self.check("[x\ny](two.md)")
        self.assertEqual(code, 1)
        self.assertIn("a link on two lines: two.md", text)

    def test_documents_without_any_link_are_no_success(self):
        self.assertEqual(self.check("none")[0], 1)


class Ratios(unittest.TestCase):
    def test_vexel_stands_beside_its_peers_with_the_goal(self):
        result = {"benchmarks": [{"name": "s/emit/vexel", "real_time": 8, "time_unit": "ns"},
                                 {"name": "s/emit/other", "real_time": 0.02, "time_unit": "us"},
                                 {"name": "t/long/100", "real_time": 7, "time_unit": "ns"},
                                 {"name": "u", "real_time": 6, "time_unit": "ns"},
                                 {"name": "s/emit/other", "run_type": "aggregate", "real_time": 9, "time_unit": "us"}]}
        tree = Tree({"r.json": json.dumps(result), "g.tsv": "s\temit\tother\t0.3\ns\temit\tthird\t0.3\n"})
        code, text = tree.run("bench_ratios.py", "--goals", "g.tsv", "r.json")
        self.assertEqual(code, 0)
        self.assertRegex(text, r"s\s+emit\s+ns\s+8\.0\s+other\s+20\.0\s+0\.40\s+0\.30 MISSED")
        self.assertRegex(text, r"(?m)^t\s+long/100\s+ns\s+7\.0$")
        self.assertRegex(text, r"(?m)^u\s+-\s+ns\s+6\.0$")
        self.assertIn("against third has no benchmark", text)


class LiftComments(unittest.TestCase):
    def test_a_comment_that_makes_the_line_too_long_moves_above(self):
        long = "    int m_Value = 0;  ///< " + "word " * 20 + "end."
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "a.h"
            path.write_text(f"{long}\n    int m_Short = 0;  ///< Short.\n")
            subprocess.run([sys.executable, TOOLS / "lift_comments.py", path], check=True)
            self.assertEqual(path.read_text(), "    /// " + "word " * 20 + "end.\n    int m_Value = 0;\n"
                                               "    int m_Short = 0;  ///< Short.\n")


unittest.main()
