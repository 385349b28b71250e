#!/usr/bin/python3
"""The icon in the notification area, as a panel shows it that draws icons and menus itself."""

import os
import subprocess

from support import checks

from desktop.embedding_panel import EmbeddingPanel
from desktop.memory import share_of
from desktop.tray_host import TrayHost
from desktop.waiting import wait_until
from desktop.window import TITLE

MENU = [(TITLE, None), ("Activate Popup Killer", True), ("About", None), ("-", None),
        ("Exit", None)]
GROWTH = 2 << 20  # bytes that are none


def the_icon_is_there_with_the_version_label_for_a_tip(bed):
    with TrayHost() as panel, bed.start() as program:
        program.window()

        wait_for_the_icon(panel)


def the_menu_has_its_five_items(bed):
    with TrayHost() as panel, bed.start() as program:
        program.window()
        wait_for_the_icon(panel)

        assert panel.menu() == MENU


def the_close_box_hides_the_window_and_the_icon_stays(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)

        window.close()

        wait_until(lambda: not window.has_task_button, "the window is hidden")
        assert panel.tips() == [TITLE]
        assert program.is_running


def a_click_on_the_icon_brings_the_hidden_window_back_as_it_was(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)
        window.turn_to("Clean Computer")
        window.tick("Clear Clipboard")
        hide(window)

        panel.activate()

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")
        assert window.page == "Clean Computer"
        assert window.is_ticked("Clear Clipboard")


def a_click_on_the_icon_restores_the_minimised_window(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)
        subprocess.run(["xdotool", "windowminimize", str(window.number)], check=True)
        wait_until(lambda: not window.is_on_screen, "the window is minimised")

        panel.activate()

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def the_menus_first_item_brings_the_hidden_window_back(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)
        hide(window)

        panel.choose(TITLE)

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def the_menus_exit_ends_the_program(bed):
    with TrayHost() as panel, bed.start() as program:
        hide_once_there(program, panel)

        panel.choose("Exit")

        assert program.end_status() == 0
        wait_until(lambda: panel.tips() == [], "the icon is gone")


def the_menus_exit_removes_the_icon_before_the_window_unloads(bed):
    with TrayHost() as panel, bed.start() as program:
        hide_once_there(program, panel)
        make_unwritable(bed.home.settings)

        panel.choose("Exit")

        message = program.message()
        assert message.text.startswith("Error: "), message.text
        assert panel.tips() == []
        message.press("OK")
        assert program.end_status() == 0


def the_exit_button_takes_the_icon_along(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)

        window.press("Exit")

        assert program.end_status() == 0
        wait_until(lambda: panel.tips() == [], "the icon is gone")


def a_second_start_shows_no_second_icon(bed):
    with TrayHost() as panel, bed.start() as first:
        first.window()
        wait_for_the_icon(panel)

        with bed.start() as second:
            message = second.message()
            assert panel.tips() == [TITLE]
            message.press("OK")
            second.end_status()

        assert panel.tips() == [TITLE]


def a_panel_that_comes_later_gets_the_icon(bed):
    with bed.start() as program:
        window = program.window()
        window.close()
        assert window.has_task_button

        with TrayHost() as panel:
            wait_for_the_icon(panel)
            hide(window)
            panel.activate()
            wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def a_panel_that_embeds_icons_before_it_shows_items_gets_one_that_can_be_used(bed):
    """Some do both, and what a program knows of the one way may be out of date when the other
    comes."""
    with TrayHost(hesitant=True) as panel, bed.start() as program:
        window = program.window()
        with EmbeddingPanel():
            wait_for_the_icon(panel)
            assert panel.menu() == MENU
            hide(window)

            panel.activate()

            wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def a_hidden_window_whose_panel_goes_is_within_reach_again(bed):
    with TrayHost() as panel, bed.start() as program:
        window = hide_once_there(program, panel)

        panel.stop()

        wait_until(lambda: window.has_task_button, "the window has a task button")
        assert not window.is_on_screen
        window.come_forward()
        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def a_panel_that_restarts_twenty_times_shows_one_icon(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)
        for turn in range(20):
            if turn == 5:  # by then everything that is made once has been made
                before = belongings(program)
            panel.restart()
            wait_for_the_icon(panel)

        assert panel.menu() == MENU
        expect_no_growth(before, belongings(program))
        hide(window)
        panel.choose("Exit")
        assert program.end_status() == 0


def closing_to_the_icon_and_back_a_hundred_times_leaves_one_icon(bed):
    with TrayHost() as panel, bed.start() as program:
        window = program.window()
        wait_for_the_icon(panel)
        for turn in range(100):
            if turn == 20:
                before = belongings(program)
            hide(window)
            assert panel.tips() == [TITLE]
            panel.activate()
            wait_until(lambda: window.is_on_screen, "the window is back on the screen")

        expect_no_growth(before, belongings(program))
        assert panel.menu() == MENU


def wait_for_the_icon(panel):
    wait_until(lambda: panel.tips() == [TITLE], "the panel shows one icon")


def hide(window):
    window.close()
    wait_until(lambda: not window.has_task_button, "the window is hidden")


def hide_once_there(program, panel):
    window = program.window()
    wait_for_the_icon(panel)
    hide(window)
    return window


def make_unwritable(file):
    """Also for root: a folder is not replaced by a file."""
    file.unlink(missing_ok=True)
    (file / "in the way").mkdir(parents=True)


def belongings(program):
    """How many files and connections the program has open, and how much memory."""
    return len(os.listdir(f"/proc/{program.pid}/fd")), share_of(program.pid)


def expect_no_growth(before, after):
    assert after[0] <= before[0], f"{before[0]} descriptors, then {after[0]}"
    assert after[1] < before[1] + GROWTH, f"{before[1]} bytes, then {after[1]}"


checks.run(
    the_icon_is_there_with_the_version_label_for_a_tip,
    the_menu_has_its_five_items,
    the_close_box_hides_the_window_and_the_icon_stays,
    a_click_on_the_icon_brings_the_hidden_window_back_as_it_was,
    a_click_on_the_icon_restores_the_minimised_window,
    the_menus_first_item_brings_the_hidden_window_back,
    the_menus_exit_ends_the_program,
    the_menus_exit_removes_the_icon_before_the_window_unloads,
    the_exit_button_takes_the_icon_along,
    a_second_start_shows_no_second_icon,
    a_panel_that_comes_later_gets_the_icon,
    a_panel_that_embeds_icons_before_it_shows_items_gets_one_that_can_be_used,
    a_hidden_window_whose_panel_goes_is_within_reach_again,
    a_panel_that_restarts_twenty_times_shows_one_icon,
    closing_to_the_icon_and_back_a_hundred_times_leaves_one_icon,
)
