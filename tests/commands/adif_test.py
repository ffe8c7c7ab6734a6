"""kavmap-adif: what it takes out of logs, and what it makes of logs that are none."""

import os
import random
import string
import unittest

import command

adif = command.load("kavmap-adif")


def record(**fields):
    return "".join(f"<{name}:{len(data.encode())}>{data} " for name, data in fields.items()) + "<EOR>\n"


class AdifTest(command.CommandTest):
    def squares(self, text, *options, status=0):
        self.write("log.adi", text)
        done = self.run_command("kavmap-adif", *options, "log.adi")
        self.said = done.stderr
        self.assertEqual(done.returncode, status, done.stderr)
        return done.stdout.split()

    def test_takes_squares_once_in_their_order(self):
        log = record(GRIDSQUARE="JO65HQ") + record(GRIDSQUARE="FN42") + record(GRIDSQUARE="JO65")
        self.assertEqual(self.squares("A log <EOH>\n" + log), ["JO65", "FN42"])
        self.assertEqual(self.said, "")

    def test_takes_long_locators_in_any_case(self):
        log = record(GridSquare="jo62Qm12Ab") + record(gridsquare="IO91wm34") + record(GRIDSQUARE="kp20")
        self.assertEqual(self.squares(log), ["JO62", "IO91", "KP20"])

    def test_takes_all_squares_of_vucc_grids(self):
        log = record(VUCC_GRIDS="EM89,em99, FM09,FN00", GRIDSQUARE="EM98XX")
        self.assertEqual(self.squares(log), ["EM98", "EM89", "EM99", "FM09", "FN00"])

    def test_takes_nothing_from_other_fields(self):
        log = record(CALL="EI12AB", COMMENT="RR73 JO65", MY_GRIDSQUARE="JO65HQ", GRIDSQUARE="FN42")
        self.assertEqual(self.squares(log), ["FN42"])

    def test_header_may_say_anything(self):
        header = "JO65 <b> <VUCC_GRIDS:4>KP20 <adif_ver:99>3.1.4 <eoh>"
        self.assertEqual(self.squares(header + record(GRIDSQUARE="FN42")), ["FN42"])

    def test_chooses_by_band(self):
        log = (record(BAND="20M", GRIDSQUARE="JO65") + record(FREQ="14.074", GRIDSQUARE="JO66")
               + record(BAND="40m", GRIDSQUARE="JO67") + record(GRIDSQUARE="JO68")
               + record(FREQ="x", GRIDSQUARE="JO69") + record(BAND="15m", FREQ="14.1", GRIDSQUARE="JO60"))
        self.assertEqual(self.squares(log, "--band", "20m"), ["JO65", "JO66"])
        self.assertIn("4 left out, on another band: 3, 4, 5, 6\n", self.said)
        self.assertEqual(self.squares(log, "--band", "20M,40m"), ["JO65", "JO66", "JO67"])

    def test_chooses_by_mode_and_submode(self):
        log = (record(MODE="MFSK", SUBMODE="FT4", GRIDSQUARE="JO65") + record(MODE="cw", GRIDSQUARE="JO66")
               + record(GRIDSQUARE="JO67"))
        self.assertEqual(self.squares(log, "--mode", "ft4"), ["JO65"])
        self.assertEqual(self.squares(log, "--mode=CW,MFSK"), ["JO65", "JO66"])

    def test_chooses_by_date(self):
        log = "".join(record(QSO_DATE=f"2026032{i}", GRIDSQUARE=f"JO6{i}") for i in range(5))
        log += record(QSO_DATE="20260230", GRIDSQUARE="JO99") + record(GRIDSQUARE="JO98")
        self.assertEqual(self.squares(log, "--from", "2026-03-22"), ["JO62", "JO63", "JO64"])
        self.assertIn("2 left out, without a date", self.said)
        self.assertEqual(self.squares(log, "--to", "20260321"), ["JO60", "JO61"])
        self.assertEqual(self.squares(log, "--from=2026-03-21", "--to=2026-03-21"), ["JO61"])

    def test_chooses_by_confirmation(self):
        log = (record(QSL_RCVD="Y", GRIDSQUARE="JO61") + record(LOTW_QSL_RCVD="v", GRIDSQUARE="JO62")
               + record(EQSL_QSL_RCVD="Y", GRIDSQUARE="JO63") + record(QSL_RCVD="R", QSL_SENT="Y", GRIDSQUARE="JO64"))
        self.assertEqual(self.squares(log, "--confirmed"), ["JO61", "JO62", "JO63"])
        self.assertIn("1 left out, not confirmed: 4\n", self.said)

    def test_says_what_is_left_out_and_why(self):
        log = record(CALL="SM7ABC") + record(CALL="K1BAD", GRIDSQUARE="FN5X") + record(GRIDSQUARE="JO")
        self.assertEqual(self.squares(log + record(GRIDSQUARE="JO65"), status=2), ["JO65"])
        self.assertEqual(self.said, "kavmap-adif: log.adi: 1 left out, without a square: 1 SM7ABC\n"
                                    "kavmap-adif: log.adi: 1 left out, no locator: FN5X: 2 K1BAD\n"
                                    "kavmap-adif: log.adi: 1 left out, no locator: JO: 3\n")

    def test_names_ten_of_many(self):
        self.squares(record(CALL="A") * 12 + record(GRIDSQUARE="JO65"))
        self.assertIn("12 left out, without a square: 1 A, ", self.said)
        self.assertIn(", 10 A, ...\n", self.said)

    def test_believes_no_length(self):
        good = record(GRIDSQUARE="JO65")
        for bad in ("<GRIDSQUARE:99>FN42<EOR>", "<GRIDSQUARE:10>FN42 <EOR>", "<GRIDSQUARE:999999999>FN42 <EOR>",
                    "<COMMENT:40>hello <GRIDSQUARE:4>FN42 <EOR>", "<GRIDSQUARE:-4>FN42<EOR>", "<GRIDSQUARE:>FN42<EOR>",
                    "<GRIDSQUARE:4x>FN42<EOR>", "<GRIDSQUARE:9999999999999999>FN42<EOR>"):
            self.assertEqual(self.squares(bad + "\n" + good, status=2), ["JO65"], bad)
            self.assertRegex(self.said, "1 left out, [A-Z]+ (is shorter than it says|has no length): 1\n")
        self.assertEqual(self.squares("<GRIDSQUARE:4>FN42HQ<EOR>" + good), ["FN42", "JO65"])
        self.assertEqual(self.squares("<GRIDSQUARE:4:S>FN42<EOR>"), ["FN42"])
        self.assertEqual(self.squares("<COMMENT:7>1 < 2>3" + "<GRIDSQUARE:4>FN42<EOR>"), ["FN42"])

    def test_leaves_out_a_record_without_an_end(self):
        self.assertEqual(self.squares(record(GRIDSQUARE="JO65") + "<GRIDSQUARE:4>FN42", status=2), ["JO65"])
        self.assertIn("the end of the record is missing: 2\n", self.said)

    def test_writes_a_file_whole_or_not_at_all(self):
        self.write("out.log", "old\n")
        self.squares(record(GRIDSQUARE="FN5X"), "-o", "out.log", status=1)
        self.assertEqual((self.home / "out.log").read_text(), "old\n")
        self.assertEqual(self.squares(record(GRIDSQUARE="JO65"), "-o", "out.log"), [])
        self.assertEqual((self.home / "out.log").read_text(), "JO65\n")
        os.mkfifo(self.home / "pipe")
        for output in ("gone/out.log", ".", "pipe"):
            self.squares(record(GRIDSQUARE="JO65"), "-o", output, status=1)
            self.assertIn(f"can't write {output}: ", self.said)
        self.assertEqual(sorted(path.name for path in self.home.iterdir()), ["log.adi", "out.log", "pipe"])

    def test_refuses_what_is_no_log(self):
        self.write("empty", "")
        self.write("binary", bytes(range(256)) * 99)
        with self.write("huge", "").open("wb") as file:
            file.truncate(1 << 30)
        os.mkfifo(self.home / "pipe")
        for name, why in (("empty", "it is empty"), ("binary", "it is no ADIF log, no record ends in it"),
                          ("huge", "it is longer than 256 MB"), (".", "it is no file"), ("pipe", "it is no file"),
                          ("gone", "there is none")):
            done = self.run_command("kavmap-adif", "-o", "out.log", name)
            self.assertEqual((done.returncode, done.stderr), (1, f"kavmap-adif: can't read {name}: {why}\n"))
        self.assertFalse((self.home / "out.log").exists())

    def test_refuses_wrong_use(self):
        for arguments in ([], ["--nonsense", "log.adi"], ["--from", "2026-02-30", "log.adi"], ["--band"]):
            done = self.run_command("kavmap-adif", *arguments)
            self.assertEqual((done.returncode, done.stdout), (1, ""), arguments)
            self.assertRegex(done.stderr, "^kavmap-adif: ")

    def test_reads_standard_input_and_several_logs(self):
        first = self.write("a.adi", record(GRIDSQUARE="JO65"))
        with self.write("b.adi", record(GRIDSQUARE="FN42")).open() as second:
            done = self.run_command("kavmap-adif", first, "-", stdin=second)
        self.assertEqual(done.stdout, "JO65\nFN42\n")


class FuzzTest(unittest.TestCase):
    """Damaged logs: whatever comes in is read to its end, and nothing but squares comes out."""

    def test_survives_every_damage(self):
        chance = random.Random(20261121)
        wanted = adif.parse(["--band=20m", "--from=2026-01-01", "log.adi"])
        anything = adif.parse(["log.adi"])
        for _ in range(3000):
            data = self.damaged(chance, self.log(chance))
            for choice in (wanted, anything):
                for square in adif.collect(bytes(data), choice, adif.Report()):
                    self.assertRegex(square, "^[A-R]{2}[0-9]{2}$")

    def test_loses_no_whole_record(self):
        chance = random.Random(7)
        for _ in range(300):
            squares = [self.square(chance) for _ in range(chance.randint(1, 20))]
            data = "header <eoh>" + "".join(
                record(CALL="SM7ABC", COMMENT=self.words(chance), GRIDSQUARE=square) for square in squares)
            self.assertEqual(adif.collect(data.encode(), adif.parse(["x"]), adif.Report()), squares)

    @staticmethod
    def square(chance):
        letters = string.ascii_uppercase[:18]
        return "".join(chance.choice(alphabet) for alphabet in (letters, letters, string.digits, string.digits))

    @staticmethod
    def words(chance):
        return "".join(chance.choice("abc <>å59") for _ in range(chance.randint(1, 30)))

    def log(self, chance):
        fields = ("GRIDSQUARE", "VUCC_GRIDS", "CALL", "BAND", "FREQ", "QSO_DATE", "MODE", "COMMENT")
        return bytearray("".join(
            record(**{chance.choice(fields): chance.choice((self.square(chance), "20M", "14.07", "20260321", "nan",
                                                            self.words(chance))) for _ in range(4)})
            for _ in range(chance.randint(0, 8))).encode())

    @staticmethod
    def damaged(chance, data):
        for _ in range(chance.randint(0, 12)):
            place = chance.randint(0, len(data))
            match chance.randint(0, 3):
                case 0:
                    data[place:place] = chance.choice((b"<", b">", b":", b"<EOR>", b"<eoh>", b"\0", b"\xff", b"9999"))
                case 1:
                    del data[place:place + chance.randint(1, 9)]
                case 2:
                    data[place:place + 1] = bytes([chance.randint(0, 255)])
                case 3:
                    data[place:] = data[place:] + data[:place]
        return data


if __name__ == "__main__":
    unittest.main()
