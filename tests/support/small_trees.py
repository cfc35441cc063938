# SPDX-License-Identifier: MIT
"""Shows a check of the source tree small trees with one fault each."""
import importlib.util
import pathlib
import tempfile


def load(path):
    """The Python file at that path, whatever its name, as a module."""
    spec = importlib.util.spec_from_file_location(path.stem.replace("-", "_"), path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def check_rows(test, rows, base, offences):
    """For each row (sentence, file, its text, expected): makes a tree of `base` (file -> text) and that file, and
    compares what `offences(root)` finds. An empty expectation means that it must find nothing."""
    for sentence, name, text, expected in rows:
        with test.subTest(sentence), tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for path, content in {**base, name: text}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(content, encoding="utf-8")
            report = "\n".join(offences(root))
            if expected:
                test.assertIn(expected, report)
            else:
                test.assertEqual(report, "")
