"""The pictures: how each comes about, and what it has to show."""

import shutil

from stage import Dialog, Popup, Scene, Shot
from stand_ins import (
    SAMPLES,
    copies_of_designs,
    earlier_backups,
    large_folder,
    machine_drive,
    maker_server,
)

APPLICATION = "Hoopline Organizer"
MENU = Popup("DROPDOWN_MENU")
CARD_MENU = Popup("POPUP_MENU")
COMBO = Popup("COMBO")
COMPLETION = Popup("NORMAL")
TOOL_TIP = Popup("TOOLTIP")
FEEDBACK = Dialog("Send feedback")
DESIGN = Dialog("butterfly.pes")
CLOSE = ["press Escape"]
CLOSE_MENU = ["press Escape Escape"]
SEARCHES = ("color:red fits:100x100", "is:favorite width:<60", "stitches:<2000 -type:dst")


# How scenes begin


def fresh(stage):
    stage.organizer.start()


def used(stage):
    """A collection with tags, notes and stars; the first design is selected."""
    stage.organizer.scan(stage.designs)
    stage.organizer.remark()
    stage.organizer.start(next(stage.designs.glob("Animals/butterfly.*")))


def with_backups(stage):
    stage.organizer.scan(stage.designs)
    stage.organizer.remark()
    earlier_backups(stage.organizer.catalogue)
    stage.organizer.start()


def with_drive(stage):
    stage.enter(machine_drive(stage.display.environment, stage.programs, stage.home))
    used(stage)


def with_duplicates(stage):
    again = stage.home / "Again"
    copies_of_designs(again / "Old stick", stage.designs / "Animals")
    stage.organizer.scan(stage.designs, again)
    stage.organizer.remark()
    stage.organizer.start()


def with_large_folder(stage):
    large_folder(stage.home / "Large")
    stage.organizer.start()


def with_news(stage):
    stage.enter(maker_server())
    stage.organizer.scan(stage.designs)
    stage.organizer.start()


def feedback_form(stage):
    stage.organizer.start(program="feedback-form")


def after_crash(stage):
    stage.organizer.start(tnw_trigger_crash="true")
    stage.menu("&Help > &About %1")
    stage.organizer.wait_until_ended()
    stage.organizer.launch()


# What happens around the program meanwhile


def new_file(stage):
    shutil.copy(SAMPLES / "Flowers/rose.dst", stage.designs / "Flowers/tea rose.dst")


def damaged_file(stage):
    (stage.designs / "Flowers/old rose.pes").write_bytes(b"#PES0001" + bytes(40))


def tidy_up(stage):
    for name in ("tea rose.dst", "old rose.pes"):
        (stage.designs / "Flowers" / name).unlink(missing_ok=True)


def type_large_folder(stage):
    stage.type(str(stage.home / "Large"))


def saved_search(text):
    return Shot(
        "saved-search-" + text.partition(":")[0],
        ["press ctrl+f ctrl+a", f"type {text}", "press ctrl+shift+s Return"],
    )


SCENES = [
    Scene(
        fresh,
        [
            Shot("main-empty"),
            Shot("menu-file", ["menu &File >"], MENU, then=CLOSE_MENU),
            Shot("menu-edit", ["menu &Edit >"], MENU, then=CLOSE_MENU),
            Shot("menu-view", ["menu &View >"], MENU, then=CLOSE_MENU),
            Shot(
                "menu-sort",
                ["menu &View > &Sort by >"],
                Popup("DROPDOWN_MENU", 2),
                then=["press Escape Escape Escape"],
            ),
            Shot("menu-help", ["menu &Help >"], MENU, then=CLOSE_MENU),
            Shot("tool-tip", ["point 20 41"], TOOL_TIP, then=["press shift"]),
            Shot("about", ["menu &Help > &About %1"], Dialog("About %1"), then=CLOSE),
            Shot("preferences-settings", ["press ctrl+comma"], Dialog("Preferences")),
            Shot(
                "preferences-privacy",
                ["press ctrl+Tab"],
                Dialog("Preferences"),
                differs={"all": "preferences-settings"},
                then=CLOSE,
            ),
            Shot("add-folder", ["press ctrl+shift+o"], Dialog("Select folder to add"), then=CLOSE),
        ],
    ),
    Scene(
        used,
        [
            Shot("main-filled"),
            Shot("menu-card", ["right_click 380 250"], CARD_MENU, then=CLOSE),
            Shot("preview-sheet", ["press space"], Dialog("Preview"), over=True, then=CLOSE),
            Shot(
                "tag-completion",
                ["press t", "type s"],
                COMPLETION,
                then=["press Escape BackSpace Escape"],
            ),
            Shot(
                "selection-card",
                ["click 620 250"],
                differs={"properties": "main-filled", "status": "main-filled"},
            ),
            Shot(
                "multi-selection",
                ["press Home shift+Right shift+Right"],
                differs={
                    "properties": "selection-card",
                    "chips": "selection-card",
                    "status": "selection-card",
                },
            ),
            Shot("nothing-selected-card", ["press ctrl+d"], differs={"grid": "multi-selection"}),
            Shot("nothing-selected", ["press ctrl+t"], Dialog(APPLICATION), over=True, then=CLOSE),
            Shot(
                "remove-folder",
                ["press ctrl+Delete"],
                Dialog(APPLICATION),
                over=True,
                differs={"all": "nothing-selected"},
                then=CLOSE,
            ),
        ],
    ),
    Scene(
        used,
        [
            Shot("zoom-100"),
            Shot(
                "zoom-75",
                ["press ctrl+minus"],
                differs={"grid": "zoom-100"},
            ),
            Shot("zoom-50", ["press ctrl+minus"], differs={"grid": "zoom-75"}),
            Shot("zoom-33", ["press ctrl+minus"], differs={"grid": "zoom-50"}),
            Shot("zoom-normal", ["press ctrl+0"], same={"grid": "zoom-100"}),
            Shot("zoom-150", ["press ctrl+plus"], differs={"grid": "zoom-100"}),
            Shot("zoom-200", ["press ctrl+plus"], differs={"grid": "zoom-150"}),
        ],
        everywhere=False,
    ),
    Scene(
        used,
        [
            Shot("unfiltered"),
            Shot(
                "file-types",
                ["press ctrl+f shift+Tab shift+Tab shift+Tab alt+Down"],
                COMBO,
                then=CLOSE,
            ),
            Shot("sizes", ["press Tab alt+Down"], COMBO, then=CLOSE),
            Shot("main-filtered", ["press ctrl+f", "type sun"], differs={"grid": "unfiltered"}),
            Shot(
                "no-match",
                ["press ctrl+a", "type zzz"],
                differs={"grid": "main-filtered", "status": "main-filtered"},
            ),
            *(saved_search(text) for text in SEARCHES),
            Shot(
                "sort",
                ["press Escape", "menu &View > &Sort by >"],
                Popup("DROPDOWN_MENU", 2),
                differs={"searches": "unfiltered"},
                then=["press Escape Escape Escape"],
            ),
            Shot(
                "search",
                ["press ctrl+f ctrl+a", "type color:red width:<60"],
                differs={"grid": "no-match", "searches": "unfiltered"},
            ),
            Shot("search-mistake", ["type  is:r"], differs={"bar": "search"}),
            Shot(
                "search-help",
                ["to_right_edge", "press Escape Tab Tab space Down"],
                CARD_MENU,
                then=CLOSE,
            ),
            Shot("search-completion", ["press ctrl+f", "type tag:s"], COMPLETION),
        ],
    ),
    Scene(
        used,
        [
            Shot("design-complete", ["press Return"], DESIGN),
            Shot(
                "design-window",
                ["click 560 706"],
                DESIGN,
                differs={"all": "design-complete"},
            ),
        ],
    ),
    Scene(
        with_drive,
        [
            Shot("transfer-start"),
            Shot(
                "transfer",
                ["press Home shift+Right shift+Right ctrl+t"],
                Dialog("Transfer embroidery files to machine"),
                over=True,
            ),
            Shot("transfer-done", ["press Return"], differs={"bar": "transfer-start"}),
            Shot(
                "changed-folder",
                ["click 1255 79", new_file, "wait 3"],
                differs={"bar": "transfer-start"},
                then=[tidy_up],
            ),
        ],
    ),
    Scene(
        used,
        [
            Shot("before-scan"),
            Shot(
                "notice-scan",
                [new_file, damaged_file, "press F5", "wait 2"],
                differs={"bar": "before-scan"},
            ),
            Shot(
                "scan-report",
                ["click 1200 79"],
                Dialog("Result of the scan"),
                then=[tidy_up],
            ),
        ],
    ),
    Scene(
        with_duplicates,
        [
            Shot("duplicates-content", ["press ctrl+shift+d"], Dialog("Duplicates")),
            Shot(
                "duplicates",
                ["press End"],
                Dialog("Duplicates"),
                differs={"all": "duplicates-content"},
            ),
            Shot(
                "duplicates-question",
                ["press Tab Tab space"],
                Dialog("Duplicates", APPLICATION),
                over=True,
            ),
        ],
    ),
    Scene(
        used,
        [
            Shot("print", ["press ctrl+a ctrl+p"], Dialog("Print")),
            Shot(
                "print-work",
                ["press Down"],
                Dialog("Print"),
                differs={"all": "print"},
                then=CLOSE,
            ),
            Shot("export-pdf", ["press ctrl+shift+p"], Dialog("Export as PDF"), then=CLOSE),
        ],
    ),
    Scene(
        with_backups,
        [Shot("backups", ["menu &File > &Backups..."], Dialog("Backups"))],
    ),
    Scene(with_news, [Shot("update", [], Dialog("Software update"))]),
    Scene(
        feedback_form,
        [
            Shot("feedback", [], FEEDBACK),
            Shot("feedback-question", ["press ctrl+Tab"], FEEDBACK, differs={"all": "feedback"}),
            Shot(
                "feedback-feature",
                ["press ctrl+Tab"],
                FEEDBACK,
                differs={"all": "feedback-question"},
            ),
            Shot(
                "feedback-bug",
                ["press ctrl+Tab"],
                FEEDBACK,
                differs={"all": "feedback-feature"},
            ),
        ],
    ),
    Scene(
        with_large_folder,
        [
            Shot(
                "progress",
                ["press ctrl+shift+o", "wait 1", type_large_folder, "press Return", "wait 4"],
                Dialog(APPLICATION),
                over=True,
                moving=True,
            ),
        ],
        everywhere=False,
    ),
    Scene(
        after_crash,
        [Shot("crash-report", [], Dialog("%1 crash reporter"))],
        everywhere=False,
    ),
]
