#!/usr/bin/python3
"""The icon in the notification area of a real panel, which shows it and its menu by itself."""

from support import checks

from desktop.waiting import wait_until
from desktop.xfce_panel import XfcePanel

SHOW, SWITCH, ABOUT, SEPARATOR, EXIT = range(5)  # the lines of the menu


def the_icon_is_there_once(bed):
    with XfcePanel() as panel, bed.start() as program:
        program.window()

        wait_for_the_icon(panel)


def the_close_box_hides_the_window_and_a_click_on_the_icon_shows_it_again(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        window.turn_to("Clean Computer")
        hide(window, panel)

        panel.click()

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")
        assert window.page == "Clean Computer"
        assert len(panel.icons()) == 1


def a_double_click_shows_the_window_too(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        hide(window, panel)

        panel.click(times=2)

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def the_menu_has_its_five_lines(bed):
    with XfcePanel() as panel, bed.start() as program:
        hide(program.window(), panel)

        lines = panel.open_menu()

        assert len(lines) == 5, lines
        assert [line for line in range(5) if lines[line] is None] == [SEPARATOR]


def the_first_line_shows_the_window(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        hide(window, panel)

        panel.choose(SHOW)

        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def the_second_line_is_the_popup_killers_switch(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        window.turn_to("Popup Killer")
        assert window.is_ticked("Activate Popup Killer")
        wait_for_the_icon(panel)

        panel.choose(SWITCH)

        wait_until(lambda: not window.is_ticked("Activate Popup Killer"), "the switch is off")


def the_third_line_tells_of_the_program(bed):
    with XfcePanel() as panel, bed.start() as program:
        hide(program.window(), panel)

        panel.choose(ABOUT)

        assert program.message().title.startswith("About")


def the_last_line_ends_the_program_and_the_icon_goes(bed):
    with XfcePanel() as panel, bed.start() as program:
        hide(program.window(), panel)

        panel.choose(EXIT)

        assert program.end_status() == 0
        wait_until(lambda: panel.icons() == [], "the icon is gone")


def a_panel_that_comes_later_gets_the_icon(bed):
    with bed.start() as program:
        window = program.window()
        window.close()
        assert window.has_task_button

        with XfcePanel() as panel:
            hide(window, panel)
            panel.click(times=2)  # It can also embed icons, which one click is not enough for.
            wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def a_panel_that_is_killed_and_started_again_has_one_icon_again(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        for _ in range(2):
            hide(window, panel)

            panel.kill()
            wait_until(lambda: window.has_task_button, "the window has a task button")
            window.come_forward()
            wait_until(lambda: window.is_on_screen, "the window is within reach")

            panel.start()
            wait_for_the_icon(panel)


def icons_that_the_panel_has_lost_come_back_with_it(bed):
    with XfcePanel() as panel, bed.start() as program:
        window = program.window()
        hide(window, panel)

        panel.kill_icons()

        wait_for_the_icon(panel)
        panel.choose(SHOW)
        wait_until(lambda: window.is_on_screen, "the window is back on the screen")


def wait_for_the_icon(panel):
    wait_until(lambda: len(panel.icons()) == 1, "the panel shows one icon")


def hide(window, panel):
    wait_for_the_icon(panel)
    window.close()
    wait_until(lambda: not window.has_task_button, "the window is hidden")
    assert len(panel.icons()) == 1


checks.run(
    the_icon_is_there_once,
    the_close_box_hides_the_window_and_a_click_on_the_icon_shows_it_again,
    a_double_click_shows_the_window_too,
    the_menu_has_its_five_lines,
    the_first_line_shows_the_window,
    the_second_line_is_the_popup_killers_switch,
    the_third_line_tells_of_the_program,
    the_last_line_ends_the_program_and_the_icon_goes,
    a_panel_that_comes_later_gets_the_icon,
    a_panel_that_is_killed_and_started_again_has_one_icon_again,
    icons_that_the_panel_has_lost_come_back_with_it,
)
