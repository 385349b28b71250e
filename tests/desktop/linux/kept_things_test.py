#!/usr/bin/python3
"""What a cleaning leaves alone."""

from support import checks

from desktop import private_mounts, processes

DOCUMENTS = "Clear My Documents Files"
RECYCLE_BIN = "Clear Recycle Bin"
TEMPORARY = "Windows Temp Directories"


def clean(bed, *options):
    """Starts the program, cleans with these options alone, and returns the log."""
    with bed.start() as program:
        window = program.window()
        window.tick_only(*options)
        return window.clean()


def outside(bed):
    """A folder that nobody asked to erase, with a file in it."""
    folder = bed.home.home.parent / "outside"
    write(folder / "album" / "victim.txt")
    return folder


def write(path, text="of worth"):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, "utf-8")
    return path


def hold_open(path):
    """Another program that has the file open."""
    with open(path, "rb") as file:
        return processes.start(["sleep", "infinity"], stdin=file)


def with_nothing_ticked_a_run_says_done_and_erases_nothing(bed):
    bed.home.name_documents()
    file = write(bed.home.documents / "letter.txt")

    log = clean(bed)

    assert log == "\nDone", log
    assert file.exists()


def the_documents_go_and_their_folder_stays(bed):
    bed.home.name_documents()
    write(bed.home.documents / "letter.txt")
    write(bed.home.documents / "taxes" / "2025" / "return.pdf")

    clean(bed, DOCUMENTS)

    assert bed.home.documents.is_dir()
    assert not list(bed.home.documents.iterdir())


def what_links_in_the_documents_lead_to_is_kept(bed):
    victims = outside(bed)
    bed.home.name_documents()
    (bed.home.documents / "file").symlink_to(victims / "album" / "victim.txt")
    (bed.home.documents / "folder").symlink_to(victims / "album")

    clean(bed, DOCUMENTS)

    assert (victims / "album" / "victim.txt").read_text("utf-8") == "of worth"
    assert not list(bed.home.documents.iterdir())


def documents_that_are_a_link_are_not_entered(bed):
    victims = outside(bed)
    bed.home.name_documents()
    bed.home.documents.rmdir()
    bed.home.documents.symlink_to(victims / "album")

    clean(bed, DOCUMENTS)

    assert (victims / "album" / "victim.txt").exists()
    assert bed.home.documents.is_symlink()


def a_home_that_is_named_as_the_documents_folder_is_not_erased(bed):
    write(bed.home.config / "user-dirs.dirs", 'XDG_DOCUMENTS_DIR="$HOME/"\n')
    file = write(bed.home.home / "letter.txt")

    clean(bed, DOCUMENTS)

    assert file.exists()


def a_hidden_file_is_kept_and_its_folder_with_it(bed):
    bed.home.name_documents()
    hidden = write(bed.home.documents / "diary" / ".today")
    beside = write(bed.home.documents / "diary" / "cover.txt")

    clean(bed, DOCUMENTS)

    assert hidden.exists()
    assert not beside.exists()


def a_file_that_another_program_holds_open_is_kept(bed):
    bed.home.name_documents()
    held = write(bed.home.documents / "minutes.txt")
    beside = write(bed.home.documents / "letter.txt")
    holder = hold_open(held)

    clean(bed, DOCUMENTS)

    processes.end(holder)
    assert held.exists()
    assert not beside.exists()


def a_volume_mounted_among_the_documents_is_kept(bed):
    if not bed.desktop.has_private_mounts:
        raise checks.Skip("this system allows no mounts of one's own")
    bed.home.name_documents()
    volume = bed.home.documents / "stick"
    volume.mkdir()
    private_mounts.mount_volume(volume)
    file = write(volume / "backup.tar")

    clean(bed, DOCUMENTS)

    assert file.exists()


def trash_that_is_a_link_is_not_entered(bed):
    if not bed.desktop.hides_foreign_trash:
        raise checks.Skip("there is trash of the user's own within reach")
    victims = outside(bed)
    write(victims / "files" / "victim.txt")
    bed.home.trash.symlink_to(victims)

    clean(bed, RECYCLE_BIN)

    assert (victims / "files" / "victim.txt").exists()


def emptying_the_recycle_bin_leaves_the_recent_documents_alone(bed):
    if not bed.desktop.hides_foreign_trash:
        raise checks.Skip("there is trash of the user's own within reach")
    trashed = write(bed.home.trash / "files" / "old.txt")
    recent = write(bed.home.data / "RecentDocuments" / "letter.desktop")

    clean(bed, RECYCLE_BIN)

    assert not trashed.exists()
    assert recent.exists()


def the_folder_for_temporary_files_and_open_files_in_it_stay(bed):
    held = write(bed.home.temporary / "in use.tmp")
    beside = write(bed.home.temporary / "old.tmp")
    holder = hold_open(held)

    clean(bed, TEMPORARY)

    processes.end(holder)
    assert held.exists()
    assert not beside.exists()


checks.run(
    with_nothing_ticked_a_run_says_done_and_erases_nothing,
    the_documents_go_and_their_folder_stays,
    what_links_in_the_documents_lead_to_is_kept,
    documents_that_are_a_link_are_not_entered,
    a_home_that_is_named_as_the_documents_folder_is_not_erased,
    a_hidden_file_is_kept_and_its_folder_with_it,
    a_file_that_another_program_holds_open_is_kept,
    a_volume_mounted_among_the_documents_is_kept,
    trash_that_is_a_link_is_not_entered,
    emptying_the_recycle_bin_leaves_the_recent_documents_alone,
    the_folder_for_temporary_files_and_open_files_in_it_stay,
)
