"""The schema of skin documents, held by a validator of its own: what is sound it passes, what is broken it refuses,
and the copy that editors use is the one the program writes.

usage: schema_test.py SKIN_LINT SOURCE_FOLDER
"""
import json
import pathlib
import subprocess
import sys
import unittest

from jsonschema import Draft202012Validator

LINT = sys.argv[1]
SOURCE = pathlib.Path(sys.argv[2])


class SchemaTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = subprocess.run([LINT, "--schema"], check=True, capture_output=True).stdout.decode()
        cls.schema = json.loads(cls.text)
        Draft202012Validator.check_schema(cls.schema)
        cls.validator = Draft202012Validator(cls.schema)

    def errors(self, document):
        return [error.message for error in self.validator.iter_errors(document)]

    def test_the_kept_copy_is_current(self):
        kept = (SOURCE / "resources/skin.schema.json").read_text(encoding="utf-8")
        self.assertTrue(kept == self.text, "resources/skin.schema.json is out of date: skin_lint --schema makes it")

    def test_the_reference_of_keys_is_current(self):
        made = subprocess.run([LINT, "--keys"], check=True, capture_output=True).stdout.decode()
        kept = (SOURCE / "docs/skin-keys.md").read_text(encoding="utf-8")
        self.assertTrue(kept == made, "docs/skin-keys.md is out of date: skin_lint --keys makes it")

    def test_the_default_document_is_valid(self):
        self.assertEqual(self.errors(json.loads((SOURCE / "resources/00-vela-default-skins.json").read_text())), [])

    def test_every_root_is_valid(self):
        skin = {"id": "a", "styles": {"chrome_title_bar": {"default": {"button_width": 46}}}}
        for document in ({"skins": [skin]}, {"skin": skin}, skin, [skin]):
            self.assertEqual(self.errors(document), [])

    def test_broken_documents_are_refused(self):
        for members in (
            {"thme": {}},
            {"theme": {"accent": "#FFF"}},
            {"theme": {"ui_weight": 50}},
            {"materials": {"surface": "unobtainium"}},
            {"materials": {"strength": 300}},
            {"shapes": {"button": {"primary": "hexagn"}}},
            {"styles": {"buton": {}}},
            {"styles": {"button": {"primary": {"hto": {}}}}},
            {"styles": {"panel": {"default": {"surface": "#123456"}}}},
            {"styles": {"panel": {"default": {"surface": {"gradientKind": "spiral"}}}}},
        ):
            self.assertNotEqual(self.errors({"skins": [{"id": "a", **members}]}), [], members)
        self.assertNotEqual(self.errors({"skins": {}}), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
