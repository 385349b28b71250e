#!/usr/bin/python3
"""The close box. As long as the program has no icon in the notification area, it minimises."""

from support import checks

from desktop.waiting import wait_until


def the_close_box_takes_the_window_from_the_screen(bed):
    with bed.start() as program:
        window = program.window()

        window.close()

        assert not window.is_on_screen
        assert program.is_running


def the_window_comes_back_from_the_task_bar_as_it_was(bed):
    with bed.start() as program:
        window = program.window()
        window.turn_to("Clean Computer")
        window.tick("Clear Clipboard")
        window.close()

        window.come_forward()

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")
        assert window.page == "Clean Computer"
        assert window.is_ticked("Clear Clipboard")


def the_window_can_be_closed_and_brought_back_again(bed):
    with bed.start() as program:
        window = program.window()
        for _ in range(3):
            window.close()
            window.come_forward()
            wait_until(lambda: window.is_on_screen, "the window is back on the screen")

        window.press("Exit")

        assert program.end_status() == 0


checks.run(
    the_close_box_takes_the_window_from_the_screen,
    the_window_comes_back_from_the_task_bar_as_it_was,
    the_window_can_be_closed_and_brought_back_again,
)
