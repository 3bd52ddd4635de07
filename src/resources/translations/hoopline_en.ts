<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CardTexts</name>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 stitch</numerusform>
            <numerusform>%1 stitches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 color</numerusform>
            <numerusform>%1 colors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogueKeeper</name>
    <message numerus="yes">
        <source>The catalogue was damaged. %n design(s) could be taken over; the damaged file was kept as %1.</source>
        <translation>
            <numerusform>The catalogue was damaged. %Ln design could be taken over; the damaged file was kept as %1.</numerusform>
            <numerusform>The catalogue was damaged. %Ln designs could be taken over; the damaged file was kept as %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogueReport</name>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln design</numerusform>
            <numerusform>%Ln designs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 stitch</numerusform>
            <numerusform>%1 stitches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 color</numerusform>
            <numerusform>%1 colors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicateGroupsModel</name>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%Ln file, %1</numerusform>
            <numerusform>%Ln files, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicateTexts</name>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 stitch</numerusform>
            <numerusform>%1 stitches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n color(s)</source>
        <translation>
            <numerusform>%Ln color</numerusform>
            <numerusform>%Ln colors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicatesCommand</name>
    <message numerus="yes">
        <source>%n design(s) could not be compared; they are missing, damaged, empty or have changed since the last scan.</source>
        <translation>
            <numerusform>%Ln design could not be compared; it is missing, damaged, empty or has changed since the last scan.</numerusform>
            <numerusform>%Ln designs could not be compared; they are missing, damaged, empty or have changed since the last scan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln group</numerusform>
            <numerusform>%Ln groups</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicatesDialog</name>
    <message numerus="yes">
        <source>Move %n file(s) to the trash?</source>
        <translation>
            <numerusform>Move %Ln file to the trash?</numerusform>
            <numerusform>Move %Ln files to the trash?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) stayed where they were.</source>
        <translation>
            <numerusform>%Ln file stayed where it was.</numerusform>
            <numerusform>%Ln files stayed where they were.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... and %Ln more</numerusform>
            <numerusform>... and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicatesPage</name>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln group</numerusform>
            <numerusform>%Ln groups</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) could not be compared.</source>
        <translation>
            <numerusform>%Ln design could not be compared.</numerusform>
            <numerusform>%Ln designs could not be compared.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln design</numerusform>
            <numerusform>%Ln designs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln design</numerusform>
            <numerusform>%Ln designs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message numerus="yes">
        <source>%n file(s) will be copied.</source>
        <translation>
            <numerusform>%Ln file will be copied.</numerusform>
            <numerusform>%Ln files will be copied.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FolderChangeNotice</name>
    <message numerus="yes">
        <source>%n folders have changed.</source>
        <translation>
            <numerusform>%Ln folder has changed.</numerusform>
            <numerusform>%Ln folders have changed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FoldersCommand</name>
    <message numerus="yes">
        <source>%n design(s) in there have tags, notes or a star, which &apos;hoopline-cli export&apos; keeps. --force removes the folders all the same. Nothing was changed.</source>
        <translation>
            <numerusform>%Ln design in there has tags, notes or a star, which &apos;hoopline-cli export&apos; keeps. --force removes the folders all the same. Nothing was changed.</numerusform>
            <numerusform>%Ln designs in there have tags, notes or a star, which &apos;hoopline-cli export&apos; keeps. --force removes the folders all the same. Nothing was changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) left the catalogue</source>
        <translation>
            <numerusform>%Ln design left the catalogue</numerusform>
            <numerusform>%Ln designs left the catalogue</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PathOpener</name>
    <message numerus="yes">
        <source>Add %n folder(s) to your collection?</source>
        <translation>
            <numerusform>Add this folder to your collection?</numerusform>
            <numerusform>Add these %Ln folders to your collection?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) were not read yet. Rescan the folders?</source>
        <translation>
            <numerusform>This design was not read yet. Rescan the folders?</numerusform>
            <numerusform>These %Ln designs were not read yet. Rescan the folders?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message numerus="yes">
        <source>The tags, notes and stars of %n design(s) that left the catalogue are remembered. Designs that come back get them back.</source>
        <translation>
            <numerusform>The tags, notes and star of %n design that left the catalogue are remembered. Designs that come back get them back.</numerusform>
            <numerusform>The tags, notes and stars of %n designs that left the catalogue are remembered. Designs that come back get them back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to forget the tags, notes and stars of %n design(s)?</source>
        <translation>
            <numerusform>Do you want to forget the tags, notes and star of %n design?</numerusform>
            <numerusform>Do you want to forget the tags, notes and stars of %n designs?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PropertiesBox</name>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%Ln file selected</numerusform>
            <numerusform>%Ln files selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanNotice</name>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%Ln new</numerusform>
            <numerusform>%Ln new</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%Ln changed</numerusform>
            <numerusform>%Ln changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moved</source>
        <translation>
            <numerusform>%Ln moved</numerusform>
            <numerusform>%Ln moved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone</source>
        <translation>
            <numerusform>%Ln gone</numerusform>
            <numerusform>%Ln gone</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not readable</source>
        <translation>
            <numerusform>%Ln not readable</numerusform>
            <numerusform>%Ln not readable</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%Ln left out</numerusform>
            <numerusform>%Ln left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not read yet</source>
        <translation>
            <numerusform>%Ln not read yet</numerusform>
            <numerusform>%Ln not read yet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%Ln file could not be read.</numerusform>
            <numerusform>%Ln files could not be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanOutput</name>
    <message numerus="yes">
        <source>Stopped; %n new design(s) are still to be read.</source>
        <translation>
            <numerusform>Stopped; %Ln new design is still to be read.</numerusform>
            <numerusform>Stopped; %Ln new designs are still to be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetCommands</name>
    <message numerus="yes">
        <source>%1 was written: %n page(s).</source>
        <translation>
            <numerusform>%1 was written: %n page.</numerusform>
            <numerusform>%1 was written: %n pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SmartFolderCheck</name>
    <message numerus="yes">
        <source>holds none of its %n design(s) any more</source>
        <translation>
            <numerusform>holds its %Ln design no more</numerusform>
            <numerusform>holds none of its %Ln designs any more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message numerus="yes">
        <source>%1 designs</source>
        <translation>
            <numerusform>%1 design</numerusform>
            <numerusform>%1 designs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 selected</source>
        <translation>
            <numerusform>%1 selected</numerusform>
            <numerusform>%1 selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 stitch</numerusform>
            <numerusform>%1 stitches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 color</numerusform>
            <numerusform>%1 colors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagsBox</name>
    <message numerus="yes">
        <source>This tag is attached to %n files</source>
        <translation>
            <numerusform>This tag is attached to %Ln file</numerusform>
            <numerusform>This tag is attached to %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n unused tags?</source>
        <translation>
            <numerusform>Delete %Ln unused tag?</numerusform>
            <numerusform>Delete %Ln unused tags?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransferNotice</name>
    <message numerus="yes">
        <source>%n file(s) copied to %1.</source>
        <translation>
            <numerusform>%Ln file copied to %1.</numerusform>
            <numerusform>%Ln files copied to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them gave way to a later one of the same name.</source>
        <translation>
            <numerusform>%Ln of them gave way to a later one of the same name.</numerusform>
            <numerusform>%Ln of them gave way to later ones of the same name.</numerusform>
        </translation>
    </message>
</context>
</TS>
