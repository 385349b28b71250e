"""A short fair word for what an eraser did in one case."""

# What is right in each group; a case of its own mind is named.
_RIGHT = {
    "Links": "only the link goes",
    "Mounts": "stays out of it",
    "Races": "nothing outside lost",
    "Files in use": "leaves it",
    "Names and depth": "all gone",
    "Permissions": "all gone",
    "Kinds of files": "leaves it",
    "LinkUnderAHiddenName": "leaves the link",
    "AnotherNameOfAFileOutside": "only that name goes",
    "MountPointAsTheRoot": "empties it, stays out of the other",
    "MountedAgainRootInItself": "all gone, no harm",
    "MountedReadOnly": "leaves all",
    "MountedDevice": "leaves it",
    "MountedAgainFile": "leaves it",
    "MountWithFoldersOfAnotherUser": "leaves them",
    "MountedOverlayWithFilesInUse": "leaves them",
    "FolderThatVanishes": "all gone, no harm",
    "FolderThatGrows": "ends; the old files are gone",
    "FileThatIsReplaced": "ends",
    "FolderThatSomeoneIsIn": "all gone",
    "FolderThatMayNotBeRead": "leaves them",
    "ForcedFolderThatKeepsAHiddenFile": "empties it, keeps the hidden file",
    "HiddenFiles": "leaves hidden files",
}

# What it means that something is gone that Zelvane leaves.
_TAKES = {
    "Mounts": "**goes in: {} lost**",
    "Files in use": "deletes it in use",
    "Links": "the link goes, as asked",
    "Kinds of files": "deletes it, as asked",
    "Permissions": "deletes it, as asked",
    "MountedOverlayWithFilesInUse": "deletes them in use",
    "HiddenFiles": "deletes them too, as asked",
}


def words(case, outcome):
    """`outcome` as zoo.py has it, or None."""
    if outcome is None:
        return "cannot be built here"
    root = case.root.rstrip("/")
    below = root + "/"
    lost = [path for kind, path in outcome.lost if kind != "folder"]
    outside = [path for path in lost if not path.startswith(below) and path != root]
    inside = [path for path in lost if path.startswith(below)]
    said = []
    if outcome.status in (124, 137):
        said.append("**does not end**")
    if outside:
        said.append(f"**{_files(outside)} outside lost**")
    if root in lost:
        said.append("only the link goes")
    if inside and not outside:
        said.append(_lookup(_TAKES, case).format(_files(inside)))
    if outcome.changed and not lost:
        said.append(f"changes {len(outcome.changed)} that it leaves")
    if outcome.left:
        said.append(_left(outcome.left))
    if said:
        return "; ".join(said)
    return "refuses it" if root == "link" else _lookup(_RIGHT, case)


def _left(left):
    files = [path for kind, path in left if kind != "folder"]
    return f"leaves {_files(files)}" if files else f"leaves {_number(left, 'empty folder')}"


def _files(paths):
    return _number(paths, "file")


def _number(things, name):
    return f"{len(things):,} {name}" + ("" if len(things) == 1 else "s")


def _lookup(texts, case):
    return texts.get(case.name) or texts[case.group]
