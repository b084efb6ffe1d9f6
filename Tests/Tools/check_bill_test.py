"""A bill of materials is held to what SPDX 2.3 asks for and to what is installed."""
import copy
import hashlib
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "Tools"))
import check_bill

DATA = b"int main() {}\n"


def good_bill():
    sha1, sha256 = hashlib.sha1(DATA).hexdigest(), hashlib.sha256(DATA).hexdigest()
    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": "sample-1.0",
        "documentNamespace": "urn:uuid:00000000-0000-5000-8000-000000000000",
        "creationInfo": {"created": "2026-01-31T12:00:00Z", "creators": ["Tool: CMake-3.25.1"]},
        "packages": [{
            "name": "Sample", "SPDXID": "SPDXRef-Package", "versionInfo": "1.0", "downloadLocation": "NOASSERTION",
            "packageVerificationCode": {"packageVerificationCodeValue": hashlib.sha1(sha1.encode()).hexdigest()},
            "licenseDeclared": "MIT AND OFL-1.1",
        }],
        "files": [{
            "fileName": "./bin/sample", "SPDXID": "SPDXRef-File-1", "licenseConcluded": "MIT",
            "checksums": [{"algorithm": "SHA1", "checksumValue": sha1}, {"algorithm": "SHA256", "checksumValue": sha256}],
        }],
        "relationships": [
            {"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES", "relatedSpdxElement": "SPDXRef-Package"},
            {"spdxElementId": "SPDXRef-Package", "relationshipType": "CONTAINS", "relatedSpdxElement": "SPDXRef-File-1"},
        ],
    }


class Bill(unittest.TestCase):
    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.prefix = pathlib.Path(self._folder.name)
        (self.prefix / "bin").mkdir()
        (self.prefix / "bin/sample").write_bytes(DATA)

    def tearDown(self):
        self._folder.cleanup()

    def complaints(self, change=lambda bill: None):
        bill = copy.deepcopy(good_bill())
        change(bill)
        return list(check_bill.complaints(bill, self.prefix))

    def assert_complains(self, part, change=lambda bill: None):
        self.assertTrue(any(part in complaint for complaint in self.complaints(change)), self.complaints(change))

    def test_may_be_good(self):
        self.assertEqual(self.complaints(), [])

    def test_needs_every_field(self):
        for key in good_bill():
            self.assertNotEqual(self.complaints(lambda bill, key=key: bill.pop(key)), [], key)
        for key in ("name", "SPDXID", "versionInfo", "downloadLocation", "packageVerificationCode"):
            self.assertNotEqual(self.complaints(lambda bill, key=key: bill["packages"][0].pop(key)), [], key)
        for key in ("fileName", "SPDXID", "checksums"):
            self.assertNotEqual(self.complaints(lambda bill, key=key: bill["files"][0].pop(key)), [], key)

    def test_needs_both_digests_of_a_file(self):
        self.assert_complains("no SHA1", lambda bill: bill["files"][0]["checksums"].pop(0))
        self.assert_complains("no SHA256", lambda bill: bill["files"][0]["checksums"].pop(1))

    def test_names_things_once_and_knows_what_it_names(self):
        self.assert_complains("given twice", lambda bill: bill["files"].append(bill["files"][0]))
        self.assert_complains("there is no SPDXRef-File-1", lambda bill: bill["files"].clear())
        self.assert_complains("no package contains it", lambda bill: bill["relationships"].pop())

    def test_knows_its_licences(self):
        self.assert_complains("Beerware", lambda bill: bill["packages"][0].update(licenseDeclared="MIT OR Beerware"))

    def test_lists_what_is_installed_and_nothing_else(self):
        (self.prefix / "bin/other").write_bytes(b"")
        self.assert_complains("./bin/other: it is installed, and not listed")
        (self.prefix / "bin/other").unlink()
        (self.prefix / "bin/sample").write_bytes(b"changed")
        self.assert_complains("./bin/sample: it is another one than was listed")
        self.assert_complains("packageVerificationCode is not that of the files")
        (self.prefix / "bin/sample").unlink()
        self.assert_complains("./bin/sample: it is listed, and not installed")

    def test_leaves_links_and_bills_out(self):
        (self.prefix / "bin/link").symlink_to("sample")
        (self.prefix / "sample.spdx.json").write_text("{}")
        self.assertEqual(self.complaints(), [])


if __name__ == "__main__":
    unittest.main()
