#!/usr/bin/python3
"""The popup killer's switch and its sound."""

from support import checks

from desktop import settings
from desktop.waiting import wait_until

SWITCH = "Activate Popup Killer"


def stored(bed):
    return settings.stored(bed.home, "PopupKiller", "IsActive")


def opened(program):
    """The window, with the page of the popup killer in front."""
    window = program.window()
    window.turn_to("Popup Killer")
    return window


def at_first_it_is_on_and_that_is_stored(bed):
    with bed.start() as program:
        assert opened(program).is_ticked(SWITCH)
        assert stored(bed) == "1"


def switched_off_it_stays_off_whatever_happens_then(bed):
    with bed.start() as program:
        opened(program).tick(SWITCH, False)
        wait_until(lambda: stored(bed) == "0", "the switch is stored")
        program.kill()

    with bed.start() as program:
        assert not opened(program).is_ticked(SWITCH)


def the_data_folder_is_filled_again_at_each_start(bed):
    folder = bed.home.data / "zelvane"
    with bed.start() as program:
        program.window()
        assert (folder / "wavpath.txt").read_bytes() == b"\r\n"
        assert (folder / "ding.wav").read_bytes()[:4] == b"RIFF"
        program.kill()
    (folder / "wavpath.txt").unlink()
    (folder / "ding.wav").unlink()

    with bed.start() as program:
        assert program.window().says("Ready")
        assert (folder / "wavpath.txt").exists()
        assert (folder / "ding.wav").exists()


def the_sound_of_the_file_is_shown(bed):
    folder = bed.home.data / "zelvane"
    folder.mkdir(mode=0o700)
    (folder / "wavpath.txt").write_bytes(b"/music/a & b.wav\r\n")

    with bed.start() as program:
        window = opened(program)
        wait_until(lambda: window.says("/music/a & b.wav"), "the page shows the sound")


checks.run(
    at_first_it_is_on_and_that_is_stored,
    switched_off_it_stays_off_whatever_happens_then,
    the_data_folder_is_filled_again_at_each_start,
    the_sound_of_the_file_is_shown,
)
