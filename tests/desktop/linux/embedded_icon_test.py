#!/usr/bin/python3
"""The icon in the notification area, as a panel shows it that embeds the windows of programs."""

import subprocess

from support import checks

from desktop.embedding_panel import EmbeddingPanel
from desktop.waiting import PATIENCE, wait_until
from desktop.window import TITLE

LEFT, MIDDLE, RIGHT = "1", "2", "3"


def the_icon_is_there(bed):
    with EmbeddingPanel(), bed.start() as program:
        program.window()

        icon_of(program)


def a_double_click_brings_the_hidden_window_back(bed):
    with EmbeddingPanel(), bed.start() as program:
        window = program.window()
        hide(window, program)

        click(program, LEFT, times=2)

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def other_clicks_do_nothing(bed):
    with EmbeddingPanel(), bed.start() as program:
        window = program.window()
        hide(window, program)

        click(program, LEFT)
        click(program, MIDDLE)

        click(program, RIGHT)  # what it does is seen after what the others would have done
        wait_for_the_menu(program)
        assert not window.is_on_screen


def the_right_button_opens_the_menu(bed):
    with EmbeddingPanel(), bed.start() as program:
        window = program.window()
        hide(window, program)

        click(program, RIGHT)

        wait_for_the_menu(program)


def the_menus_first_item_brings_the_hidden_window_back(bed):
    with EmbeddingPanel(), bed.start() as program:
        window = program.window()
        hide(window, program)

        choose(program, "Down")

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def the_menus_exit_ends_the_program(bed):
    with EmbeddingPanel(), bed.start() as program:
        hide(program.window(), program)

        choose(program, "Up")

        assert program.end_status() == 0


def a_panel_that_goes_and_comes_back_has_the_icon_again(bed):
    with EmbeddingPanel() as panel, bed.start() as program:
        window = program.window()
        for _ in range(5):
            hide(window, program)

            panel.stop()
            wait_until(lambda: not icons_of(program), "the icon is gone")
            window.come_forward()
            wait_until(lambda: window.is_on_screen, "the window is within reach")

            panel.start()
            icon_of(program)


def a_panel_that_comes_later_gets_the_icon(bed):
    with bed.start() as program:
        window = program.window()

        with EmbeddingPanel():
            hide(window, program)
            click(program, LEFT, times=2)
            wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def icons_of(program):
    """The little windows of the program that are seen."""
    return [number for number in told("search", "--onlyvisible", "--pid", str(program.pid)).split()
            if told("getwindowname", number).strip() == "zelvane"]


def told(*question):
    return subprocess.run(["xdotool", *question], capture_output=True, text=True,
                          timeout=PATIENCE).stdout


def icon_of(program):
    wait_until(lambda: len(icons_of(program)) == 1, "the panel shows one icon")
    return icons_of(program)[0]


def hide(window, program):
    icon_of(program)
    window.close()


def click(program, button, times=1):
    subprocess.run(["xdotool", "mousemove", "--window", icon_of(program), "11", "11",
                    "click", "--repeat", str(times), "--delay", "20", button],
                   check=True, timeout=PATIENCE)


def wait_for_the_menu(program):
    """The toolkit tells screen readers nothing of a menu without a window. It is one more of the
    little windows, beside the icon."""
    wait_until(lambda: len(icons_of(program)) == 2, "the menu is open")


def choose(program, key):
    """The item to which the key leads in a menu that was just opened."""
    click(program, RIGHT)
    wait_for_the_menu(program)
    subprocess.run(["xdotool", "key", key, "Return"], check=True, timeout=PATIENCE)


checks.run(
    the_icon_is_there,
    a_double_click_brings_the_hidden_window_back,
    other_clicks_do_nothing,
    the_right_button_opens_the_menu,
    the_menus_first_item_brings_the_hidden_window_back,
    the_menus_exit_ends_the_program,
    a_panel_that_goes_and_comes_back_has_the_icon_again,
    a_panel_that_comes_later_gets_the_icon,
)
