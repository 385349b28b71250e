#!/usr/bin/python3
"""A second start while the program runs."""

from support import checks


def a_second_start_says_that_the_program_runs_and_ends(bed):
    with bed.start() as first:
        first.window()

        with bed.start() as second:
            message = second.message()
            assert (message.title, message.text) == ("Zelvane", "Zelvane v1.0 already running.")
            assert message.buttons == ["OK"]
            message.press("OK")
            assert second.end_status() == 0


def a_second_start_changes_nothing(bed):
    with bed.start() as first:
        window = first.window()
        window.turn_to("Clean Computer")
        window.tick("Clear Clipboard")
        before = bed.home.content()

        with bed.start() as second:
            second.message().press("OK")
            second.end_status()

        assert first.is_running
        assert window.page == "Clean Computer"
        assert window.is_ticked("Clear Clipboard")
        assert bed.home.content() == before


def another_user_is_not_in_the_way(bed):
    other = bed.desktop.new_home("other_user")
    with bed.start() as first, bed.start(other) as second:
        assert first.window().title == second.window().title


def after_an_end_by_force_the_program_starts_again(bed):
    with bed.start() as first:
        first.window()
        first.kill()

    with bed.start() as second:
        assert second.window().says("Ready")


checks.run(
    a_second_start_says_that_the_program_runs_and_ends,
    a_second_start_changes_nothing,
    another_user_is_not_in_the_way,
    after_an_end_by_force_the_program_starts_again,
)
