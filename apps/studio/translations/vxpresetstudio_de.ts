<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ComboFilling</name>
    <message>
        <source>No entries</source>
        <translation>Keine Einträge</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>Keiner gewählt</translation>
    </message>
    <message>
        <source>Entry %1 of %2: not there</source>
        <translation>Eintrag %1 von %2: gibt es nicht</translation>
    </message>
</context>
<context>
    <name>EditNames</name>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>Change %1 to %2</source>
        <translation>%1 auf %2 ändern</translation>
    </message>
    <message>
        <source>Add %1 %2</source>
        <translation>%1 %2 hinzufügen</translation>
    </message>
    <message>
        <source>Remove %1 %2</source>
        <translation>%1 %2 entfernen</translation>
    </message>
    <message>
        <source>Move %1 %2</source>
        <translation>%1 %2 verschieben</translation>
    </message>
    <message>
        <source>Reset entries of %1</source>
        <translation>Einträge zurücksetzen: %1</translation>
    </message>
</context>
<context>
    <name>FaceChoices</name>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
</context>
<context>
    <name>Limit</name>
    <message>
        <source>Lar&amp;gest size</source>
        <translation>&amp;Größte Maße</translation>
    </message>
    <message>
        <source>largest width</source>
        <translation>Größte Breite</translation>
    </message>
    <message>
        <source>largest height</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>Smallest si&amp;ze</source>
        <translation>&amp;Kleinste Maße</translation>
    </message>
    <message>
        <source>smallest width</source>
        <translation>Kleinste Breite</translation>
    </message>
    <message>
        <source>smallest height</source>
        <translation>Kleinste Höhe</translation>
    </message>
    <message>
        <source>&amp;Bitrate</source>
        <translation>Bitrat&amp;e</translation>
    </message>
    <message>
        <source>lowest video bitrate</source>
        <translation>Niedrigste Videobitrate</translation>
    </message>
    <message>
        <source>highest video bitrate</source>
        <translation>Höchste Videobitrate</translation>
    </message>
    <message>
        <source>lowest audio bitrate</source>
        <translation>Niedrigste Tonbitrate</translation>
    </message>
    <message>
        <source>highest audio bitrate</source>
        <translation>Höchste Tonbitrate</translation>
    </message>
</context>
<context>
    <name>ListFamily</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>a name or a number</source>
        <translation>ein Name oder eine Zahl</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Level</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>Auflö&amp;sung</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>1440x1080</source>
        <translation>1440x1080</translation>
    </message>
    <message>
        <source>frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>25 or 30000/1001</source>
        <translation>25 oder 30000/1001</translation>
    </message>
    <message>
        <source>Pi&amp;xel format</source>
        <translation>Pi&amp;xelformat</translation>
    </message>
    <message>
        <source>pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Sample &amp;rate</source>
        <translation>Abtast&amp;rate</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>48000 or 44.1 kHz</source>
        <translation>48000 oder 44.1 kHz</translation>
    </message>
    <message>
        <source>Channel&amp;s</source>
        <translation>Kanä&amp;le</translation>
    </message>
    <message>
        <source>channel layout</source>
        <translation>Kanalanordnung</translation>
    </message>
    <message>
        <source>Stereo, 5.1 or 0x3</source>
        <translation>Stereo, 5.1 oder 0x3</translation>
    </message>
    <message>
        <source>sample format</source>
        <translation>Abtastformat</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Sample format</source>
        <translation>Abtastformat</translation>
    </message>
</context>
<context>
    <name>StreamFamily</name>
    <message>
        <source>video codec</source>
        <translation>Videocodec</translation>
    </message>
    <message>
        <source>audio codec</source>
        <translation>Audiocodec</translation>
    </message>
    <message>
        <source>Unknown codec %1</source>
        <translation>Unbekannter Codec %1</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::AspectRow</name>
    <message>
        <source>sample aspect</source>
        <translation>Pixelverhältnis</translation>
    </message>
    <message>
        <source>ratio of the sample aspect</source>
        <translation>Zahlen des Pixelverhältnisses</translation>
    </message>
    <message>
        <source>Unknown shape %1</source>
        <translation>Unbekannte Form %1</translation>
    </message>
    <message>
        <source>A ratio is written as 16:15.</source>
        <translation>Ein Verhältnis schreibt man als 16:15.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::BitrateBar</name>
    <message>
        <source>from %1 (preset)</source>
        <translation>ab %1 (Vorgabe)</translation>
    </message>
    <message>
        <source>from %1 (codec)</source>
        <translation>ab %1 (Codec)</translation>
    </message>
    <message>
        <source>to %1 (preset)</source>
        <translation>bis %1 (Vorgabe)</translation>
    </message>
    <message>
        <source>to %1 (codec)</source>
        <translation>bis %1 (Codec)</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>ab %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>source %1</source>
        <translation>Quelle %1</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::BitrateBox</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::BitrateWords</name>
    <message>
        <source>every grade</source>
        <translation>jede Stufe</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>grades</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Output: %1.</source>
        <translation>Ausgabe: %1.</translation>
    </message>
    <message>
        <source>Source: %1.</source>
        <translation>Quelle: %1.</translation>
    </message>
    <message>
        <source>At least %1 by the preset.</source>
        <translation>Nach der Vorgabe mindestens %1.</translation>
    </message>
    <message>
        <source>At least %1 suits the codec.</source>
        <translation>Für den Codec passen mindestens %1.</translation>
    </message>
    <message>
        <source>At most %1 by the preset.</source>
        <translation>Nach der Vorgabe höchstens %1.</translation>
    </message>
    <message>
        <source>At most %1 suits the codec.</source>
        <translation>Für den Codec passen höchstens %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>grade and its bitrate</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Grades: %1.</source>
        <translation>Stufen: %1.</translation>
    </message>
    <message>
        <source>What the codec takes follows from the content, not from a bitrate.</source>
        <translation>Was der Codec braucht, folgt aus dem Inhalt, nicht aus einer Bitrate.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::BusyLine</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel: %1</source>
        <translation>Abbrechen: %1</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::CodecList</name>
    <message>
        <source>Add a codec that the container takes</source>
        <translation>Einen Codec hinzufügen, den der Container aufnimmt</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>All codecs that the container takes are there</source>
        <translation>Alle Codecs, die der Container aufnimmt, sind da</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::CodecPage</name>
    <message>
        <source>&amp;Sample aspect</source>
        <translation>&amp;Pixelverhältnis</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ConversionStatus</name>
    <message>
        <source>Progress of the conversion</source>
        <translation>Fortschritt der Umwandlung</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>Making %1</source>
        <translation>%1 entsteht</translation>
    </message>
    <message>
        <source>Starting …</source>
        <translation>Beginnt …</translation>
    </message>
    <message>
        <source>Cancelling …</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>%1 is made: %2 in %3</source>
        <translation>%1 ist fertig: %2 in %3</translation>
    </message>
    <message>
        <source>Cancelled: nothing is left of %1</source>
        <translation>Abgebrochen: Von %1 ist nichts geblieben</translation>
    </message>
    <message>
        <source>It could not be converted.</source>
        <translation>Es ließ sich nicht umwandeln.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Another Name…</source>
        <translation>Anderer Name …</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ConversionTexts</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 fertig</translation>
    </message>
    <message>
        <source>%1× speed</source>
        <translation>%1-fache Geschwindigkeit</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>sizes of files</comment>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ConvertPanel</name>
    <message>
        <source>Pic&amp;ture:</source>
        <translation>B&amp;ild:</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Umwandeln …</translation>
    </message>
    <message>
        <source>How the picture fits into a frame of another shape</source>
        <translation>Wie das Bild in einen Rahmen anderer Form kommt</translation>
    </message>
    <message>
        <source>Pad with black</source>
        <translation>Schwarz auffüllen</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Verzerren</translation>
    </message>
    <message>
        <source>There is no source to convert.</source>
        <translation>Es gibt keine Quelle zum Umwandeln.</translation>
    </message>
    <message>
        <source>Choose a preset to see what becomes of this file.</source>
        <translation>Wählen Sie eine Vorgabe, um zu sehen, was aus dieser Datei wird.</translation>
    </message>
    <message>
        <source>Cannot be converted here: %1</source>
        <translation>Lässt sich hier nicht umwandeln: %1</translation>
    </message>
    <message>
        <source>The size cannot be predicted: the source does not tell its length.</source>
        <translation>Die Größe lässt sich nicht vorhersagen: Die Quelle nennt ihre Länge nicht.</translation>
    </message>
    <message>
        <source>Predicted size: %1 (%2)</source>
        <translation>Vorhergesagte Größe: %1 (%2)</translation>
    </message>
    <message>
        <source>Convert To</source>
        <translation>Umwandeln in</translation>
    </message>
    <message>
        <source>%1 files (*.%2);;All files (*)</source>
        <translation>%1-Dateien (*.%2);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>A conversion is running already.</source>
        <translation>Es läuft bereits eine Umwandlung.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::CustomBitrate</name>
    <message>
        <source>Bitrate of one&apos;s own</source>
        <translation>Eigene Bitrate</translation>
    </message>
    <message>
        <source>Set as limits</source>
        <translation>Als Grenzen setzen</translation>
    </message>
    <message>
        <source>Sets both limits of the bitrate instead, which documents can hold</source>
        <translation>Setzt stattdessen beide Grenzen der Bitrate, die in Dokumente passen</translation>
    </message>
    <message>
        <source>Documents cannot hold a bitrate of one&apos;s own: once saved and opened again, it is Auto.</source>
        <translation>Dokumente können keine eigene Bitrate aufnehmen: Nach dem Speichern und Öffnen ist sie Auto.</translation>
    </message>
    <message>
        <source>bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Set limits to the bitrate</source>
        <translation>Grenzen der Bitrate setzen</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::EntryEditor</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>New %1</source>
        <translation>Neu: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Offer what the codec offers by itself</source>
        <translation>Anbieten, was der Codec von sich aus anbietet</translation>
    </message>
    <message>
        <source>Reset entries of %1</source>
        <translation>Einträge zurücksetzen: %1</translation>
    </message>
    <message>
        <source>“%1” tells no %2. An example: %3</source>
        <translation>„%1“ ist kein gültiger Wert für %2. Ein Beispiel: %3</translation>
    </message>
    <message>
        <source>“%1” is in the list already.</source>
        <translation>„%1“ steht schon in der Liste.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::EntryListBox</name>
    <message>
        <source>Remove (Delete)</source>
        <translation>Entfernen (Entf)</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Nach oben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Nach unten (Alt+Ab)</translation>
    </message>
    <message>
        <source>Entries of %1</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Move %1 up</source>
        <translation>%1 nach oben</translation>
    </message>
    <message>
        <source>Move %1 down</source>
        <translation>%1 nach unten</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::FileActions</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;New from Built-in Presets</source>
        <translation>&amp;Neu aus eingebauten Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Open Preset Document</source>
        <translation>Vorgabendokument öffnen</translation>
    </message>
    <message>
        <source>Preset documents (*.json);;All files (*)</source>
        <translation>Vorgabendokumente (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Preset Document</source>
        <translation>Vorgabendokument speichern</translation>
    </message>
    <message>
        <source>presets.json</source>
        <translation>vorgaben.json</translation>
    </message>
    <message>
        <source>Preset documents (*.json)</source>
        <translation>Vorgabendokumente (*.json)</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes of &quot;%1&quot; first?</source>
        <translation>Die Änderungen an „%1“ vorher speichern?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved: another program has changed it since it was opened.</source>
        <translation>„%1“ wurde nicht gespeichert: Ein anderes Programm hat die Datei seit dem Öffnen geändert.</translation>
    </message>
    <message>
        <source>Another program has changed &quot;%1&quot;. What is shown here is as it was before.</source>
        <translation>Ein anderes Programm hat „%1“ geändert. Hier ist der Stand von vorher zu sehen.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::FindingTexts</name>
    <message numerus="yes">
        <source>%n preset(s)</source>
        <translation>
            <numerusform>%n Vorgabe</numerusform>
            <numerusform>%n Vorgaben</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, nothing wrong.</source>
        <translation>%1, nichts zu beanstanden.</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3.</source>
        <translation>%1: %2, %3.</translation>
    </message>
    <message numerus="yes">
        <source>The first %n are listed.</source>
        <translation>
            <numerusform>Der erste ist aufgeführt.</numerusform>
            <numerusform>Die ersten %n sind aufgeführt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n preset(s) imported from %1</source>
        <translation>
            <numerusform>%n Vorgabe aus %1 importiert</numerusform>
            <numerusform>%n Vorgaben aus %1 importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; %2 left out, %3 became something like it.</source>
        <translation>%1; %2 ausgelassen, %3 in Ähnliches übertragen.</translation>
    </message>
    <message>
        <source>%1; expected %2</source>
        <translation>%1; erwartet: %2</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::FindingsModel</name>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::FindingsPane</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Nothing was looked for yet: Presets &gt; Check looks at the document.</source>
        <translation>Noch wurde nichts geprüft: Vorgaben &gt; Prüfen sieht sich das Dokument an.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::FormatTreeModel</name>
    <message>
        <source>Preset, %1</source>
        <translation>Vorgabe, %1</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::GradeText</name>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ItemHeader</name>
    <message>
        <source>A preset keeps its container: make a new one for another.</source>
        <translation>Eine Vorgabe behält ihren Container: Für einen anderen legen Sie eine neue an.</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;Icon</source>
        <translation>S&amp;ymbol</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Bes&amp;chreibung</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Vorgabe braucht einen Namen.</translation>
    </message>
    <message>
        <source>Unknown icon %1</source>
        <translation>Unbekanntes Symbol %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>A category needs a name.</source>
        <translation>Eine Kategorie braucht einen Namen.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::LimitsBox</name>
    <message>
        <source>Limits for every codec</source>
        <translation>Grenzen für jeden Codec</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Limits of the size work only when both largest sides are given.</source>
        <translation>Grenzen der Maße wirken nur, wenn beide größten Seiten angegeben sind.</translation>
    </message>
    <message>
        <source>The smallest size is larger than the largest one.</source>
        <translation>Die kleinsten Maße sind größer als die größten.</translation>
    </message>
    <message>
        <source>The lowest bitrate is not below the highest one.</source>
        <translation>Die niedrigste Bitrate liegt nicht unter der höchsten.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ListRow</name>
    <message>
        <source>Add, remove and move the entries of this list</source>
        <translation>Die Einträge dieser Liste hinzufügen, entfernen und verschieben</translation>
    </message>
    <message>
        <source>Edit entries of %1</source>
        <translation>Einträge bearbeiten: %1</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::MessageBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomeDrawings</name>
    <message>
        <source>Bitrate of the video</source>
        <translation>Bitrate des Videos</translation>
    </message>
    <message>
        <source>Bitrate of the sound</source>
        <translation>Bitrate des Tons</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomeModel</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomeNotices</name>
    <message>
        <source>Warning (sound):</source>
        <translation>Warnung (Ton):</translation>
    </message>
    <message>
        <source>Warning (video):</source>
        <translation>Warnung (Video):</translation>
    </message>
    <message>
        <source>Gives way:</source>
        <translation>Weicht ab:</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomePane</name>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Drop a video or sound file here, or open one, to see what this preset makes of it.</source>
        <translation>Ziehen Sie eine Video- oder Tondatei hierher, oder öffnen Sie eine, um zu sehen, was diese Vorgabe daraus macht.</translation>
    </message>
    <message>
        <source>Drop a video or sound file here, or open one, to see what it holds; with a preset chosen, also what becomes of it.</source>
        <translation>Ziehen Sie eine Video- oder Tondatei hierher, oder öffnen Sie eine, um zu sehen, was sie enthält; mit einer gewählten Vorgabe auch, was daraus wird.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomeRows</name>
    <message>
        <source>Size</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>Displayed as</source>
        <translation>Dargestellt als</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Sample aspect</source>
        <translation>Pixelverhältnis</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Highest bitrate</source>
        <translation>Höchste Bitrate</translation>
    </message>
    <message>
        <source>Lowest bitrate</source>
        <translation>Niedrigste Bitrate</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>Codec tag</source>
        <translation>Codeckennung</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Sample format</source>
        <translation>Abtastformat</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>the preset&apos;s</source>
        <translation>aus der Vorgabe</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>predicted from the bitrates: %1</source>
        <translation>aus den Bitraten vorhergesagt: %1</translation>
    </message>
    <message>
        <source>%1: none in the source</source>
        <translation>%1: in der Quelle nicht vorhanden</translation>
    </message>
    <message>
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>the preset has no codec for it</source>
        <translation>die Vorgabe hat keinen Codec dafür</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OutcomeView</name>
    <message>
        <source>Source and output</source>
        <translation>Quelle und Ausgabe</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OwnBitrates</name>
    <message numerus="yes">
        <source>Documents cannot hold a bitrate of one&apos;s own: in the file, %n preset(s) have Auto instead, &quot;%1&quot; among them. Limits are kept.</source>
        <translation>
            <numerusform>Dokumente können keine eigene Bitrate halten: In der Datei hat %n Vorgabe, „%1“, stattdessen Auto. Grenzen bleiben erhalten.</numerusform>
            <numerusform>Dokumente können keine eigene Bitrate halten: In der Datei haben %n Vorgaben, darunter „%1“, stattdessen Auto. Grenzen bleiben erhalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::PresetActions</name>
    <message>
        <source>Chec&amp;k</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>Vorgaben importieren</translation>
    </message>
    <message>
        <source>Presets of other programs (*.json *.gep);;All files (*)</source>
        <translation>Vorgaben anderer Programme (*.json *.gep);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Checking the document…</source>
        <translation>Das Dokument wird geprüft …</translation>
    </message>
    <message>
        <source>Importing &quot;%1&quot;…</source>
        <translation>„%1“ wird importiert …</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::PresetPane</name>
    <message>
        <source>Pick a preset in the tree to see what it makes of a file, and to change it.</source>
        <translation>Wählen Sie eine Vorgabe im Baum, um zu sehen, was sie aus einer Datei macht, und um sie zu ändern.</translation>
    </message>
    <message>
        <source>Vide&amp;o</source>
        <translation>Vide&amp;o</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Ton</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Pick a preset of this category to see what it makes of a file.</source>
        <translation>Wählen Sie eine Vorgabe dieser Kategorie, um zu sehen, was sie aus einer Datei macht.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::RecentFiles</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::RemedyButtons</name>
    <message>
        <source>Ways out:</source>
        <translation>Auswege:</translation>
    </message>
    <message>
        <source>%1. This changes the preset, and can be undone.</source>
        <translation>%1. Das ändert die Vorgabe und lässt sich rückgängig machen.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::SizeDrawing</name>
    <message>
        <source>Sizes to scale</source>
        <translation>Maße im gleichen Maßstab</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::SizeWords</name>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>stored as %1</source>
        <translation>gespeichert als %1</translation>
    </message>
    <message>
        <source>stretched</source>
        <translation>verzerrt</translation>
    </message>
    <message>
        <source>padded left and right</source>
        <translation>links und rechts aufgefüllt</translation>
    </message>
    <message>
        <source>padded above and below</source>
        <translation>oben und unten aufgefüllt</translation>
    </message>
    <message>
        <source>cut off left and right</source>
        <translation>links und rechts beschnitten</translation>
    </message>
    <message>
        <source>cut off above and below</source>
        <translation>oben und unten beschnitten</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::SourceBar</name>
    <message>
        <source>Open &amp;Media…</source>
        <translation>&amp;Medium öffnen …</translation>
    </message>
    <message>
        <source>Opens a video or sound file; it can also be dropped here</source>
        <translation>Öffnet eine Video- oder Tondatei; sie lässt sich auch hierher ziehen</translation>
    </message>
    <message>
        <source>No source</source>
        <translation>Keine Quelle</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Open Media</source>
        <translation>Medium öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel reading</source>
        <translation>Lesen abbrechen</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::StartLine</name>
    <message>
        <source>Shows, picks and edits the output presets of a media converter.</source>
        <translation>Zeigt, wählt und bearbeitet die Ausgabevorgaben eines Medienkonverters.</translation>
    </message>
    <message>
        <source>preset document to open</source>
        <translation>zu öffnendes Vorgabendokument</translation>
    </message>
    <message>
        <source>select the preset of that path, or the first whose path ends so</source>
        <translation>die Vorgabe dieses Pfades wählen, oder die erste, deren Pfad so endet</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>open that media file</source>
        <translation>diese Mediendatei öffnen</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>narrow the tree to what has these words</source>
        <translation>den Baum auf das einengen, was diese Wörter hat</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>look for what is wrong with the document</source>
        <translation>das Dokument prüfen</translation>
    </message>
    <message>
        <source>light, dark or system</source>
        <translation>light, dark oder system</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>language of the texts: en or de</source>
        <translation>Sprache der Texte: en oder de</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>size of the window, as 1400x900</source>
        <translation>Größe des Fensters, etwa 1400x900</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>write a picture of the window to that file, and end</source>
        <translation>ein Bild des Fensters in diese Datei schreiben und enden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size, as 1400x900 is one.</source>
        <translation>„%1“ ist keine Größe, wie es 1400x900 ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no theme; light, dark and system are.</source>
        <translation>„%1“ ist kein Farbschema; light, dark und system sind es.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no language of the program; en and de are.</source>
        <translation>„%1“ ist keine Sprache des Programms; en und de sind es.</translation>
    </message>
    <message>
        <source>There can be one document at a time.</source>
        <translation>Es kann nur ein Dokument zugleich geben.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::StreamPage</name>
    <message>
        <source>%1 holds no pictures.</source>
        <translation>%1 enthält keine Bilder.</translation>
    </message>
    <message>
        <source>%1 holds no sound.</source>
        <translation>%1 enthält keinen Ton.</translation>
    </message>
    <message>
        <source>No codec is offered: outputs have no picture. Add one with “+”.</source>
        <translation>Kein Codec wird angeboten: Ausgaben haben kein Bild. Fügen Sie mit „+“ einen hinzu.</translation>
    </message>
    <message>
        <source>No codec is offered: outputs have no sound. Add one with “+”.</source>
        <translation>Kein Codec wird angeboten: Ausgaben haben keinen Ton. Fügen Sie mit „+“ einen hinzu.</translation>
    </message>
    <message>
        <source>No codec is chosen: outputs have no picture. Mark one in the list.</source>
        <translation>Kein Codec ist gewählt: Ausgaben haben kein Bild. Markieren Sie einen in der Liste.</translation>
    </message>
    <message>
        <source>No codec is chosen: outputs have no sound. Mark one in the list.</source>
        <translation>Kein Codec ist gewählt: Ausgaben haben keinen Ton. Markieren Sie einen in der Liste.</translation>
    </message>
    <message>
        <source>Auto stands for the first codec of the list that can be used.</source>
        <translation>Auto steht für den ersten verwendbaren Codec der Liste.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::StudioDocument</name>
    <message>
        <source>Built-in presets</source>
        <translation>Eingebaute Vorgaben</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::StudioWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Media…</source>
        <translation>&amp;Medium öffnen …</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>Um&amp;wandeln …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Find Preset</source>
        <translation>Vorgabe &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tree</source>
        <translation>&amp;Baum</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Outcome</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>Be&amp;funde</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>Fa&amp;rben</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About VXPresetStudio</source>
        <translation>&amp;Über VXPresetStudio</translation>
    </message>
    <message>
        <source>About VXPresetStudio</source>
        <translation>Über VXPresetStudio</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VXPresetStudio %1&lt;/h3&gt;&lt;p&gt;Shows, picks and edits the output presets of a media converter, and shows what a source becomes with them.&lt;/p&gt;&lt;p&gt;Qt %2&lt;/p&gt;</source>
        <translation>&lt;h3&gt;VXPresetStudio %1&lt;/h3&gt;&lt;p&gt;Zeigt, wählt und bearbeitet die Ausgabevorgaben eines Medienkonverters, und zeigt, was mit ihnen aus einer Quelle wird.&lt;/p&gt;&lt;p&gt;Qt %2&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Open Recent M&amp;edia</source>
        <translation>Zuletzt geöffnete M&amp;edien</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Es gibt keine Vorgabe „%1“.</translation>
    </message>
    <message>
        <source>%1[*] - VXPresetStudio</source>
        <translation>%1[*] - VXPresetStudio</translation>
    </message>
    <message>
        <source>the built-in presets</source>
        <translation>den eingebauten Vorgaben</translation>
    </message>
    <message>
        <source>The program ended unexpectedly. Changes of %1 were put by on %2.</source>
        <translation>Das Programm ist unerwartet abgebrochen. Änderungen an %1 wurden am %2 aufgehoben.</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Umwandlung</translation>
    </message>
    <message>
        <source>A conversion is running. Stop it and close?</source>
        <translation>Eine Umwandlung läuft. Abbrechen und schließen?</translation>
    </message>
    <message>
        <source>Recently used presets: %1</source>
        <translation>Zuletzt benutzte Vorgaben: %1</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Changes that are not saved would be lost in a crash, for they cannot be put by: %1</source>
        <translation>Nicht gespeicherte Änderungen gingen bei einem Absturz verloren, denn sie lassen sich nicht beiseitelegen: %1</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;…</source>
        <translation>„%1“ wird gelesen …</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;…</source>
        <translation>„%1“ wird geschrieben …</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still being written. Close without waiting for it?</source>
        <translation>„%1“ wird noch geschrieben. Ohne zu warten schließen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not opened: another document is being read or written.</source>
        <translation>„%1“ wurde nicht geöffnet: Ein anderes Dokument wird gerade gelesen oder geschrieben.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::ToolText</name>
    <message>
        <source>the document is empty</source>
        <translation>das Dokument ist leer</translation>
    </message>
    <message>
        <source>more text behind the end of the document</source>
        <translation>weiterer Text hinter dem Ende des Dokuments</translation>
    </message>
    <message>
        <source>no JSON value</source>
        <translation>kein JSON-Wert</translation>
    </message>
    <message>
        <source>missing member name</source>
        <translation>der Name eines Elements fehlt</translation>
    </message>
    <message>
        <source>missing colon behind a member name</source>
        <translation>der Doppelpunkt hinter einem Namen fehlt</translation>
    </message>
    <message>
        <source>missing comma or closing brace</source>
        <translation>ein Komma oder eine schließende geschweifte Klammer fehlt</translation>
    </message>
    <message>
        <source>missing comma or closing bracket</source>
        <translation>ein Komma oder eine schließende eckige Klammer fehlt</translation>
    </message>
    <message>
        <source>\u without four hexadecimal digits</source>
        <translation>\u ohne vier hexadezimale Ziffern</translation>
    </message>
    <message>
        <source>unpaired surrogate</source>
        <translation>ungepaartes Surrogat</translation>
    </message>
    <message>
        <source>unknown escape sequence</source>
        <translation>unbekannte Escape-Folge</translation>
    </message>
    <message>
        <source>missing closing quote</source>
        <translation>das schließende Anführungszeichen fehlt</translation>
    </message>
    <message>
        <source>not valid UTF-8</source>
        <translation>kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>number too large</source>
        <translation>die Zahl ist zu groß</translation>
    </message>
    <message>
        <source>missing digits behind the decimal point</source>
        <translation>hinter dem Dezimalpunkt fehlen Ziffern</translation>
    </message>
    <message>
        <source>missing digits of the exponent</source>
        <translation>die Ziffern des Exponenten fehlen</translation>
    </message>
    <message>
        <source>not valid JSON</source>
        <translation>kein gültiges JSON</translation>
    </message>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>Steuerzeichen in einem Text</translation>
    </message>
    <message>
        <source>unexpected end of the document</source>
        <translation>unerwartetes Ende des Dokuments</translation>
    </message>
    <message>
        <source>a zero byte, which no JSON text has</source>
        <translation>ein Nullbyte, das kein JSON-Text hat</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>ist %1</translation>
    </message>
    <message>
        <source>is an object</source>
        <translation>ist ein Objekt</translation>
    </message>
    <message>
        <source>is a list</source>
        <translation>ist eine Liste</translation>
    </message>
    <message>
        <source>is a text</source>
        <translation>ist ein Text</translation>
    </message>
    <message>
        <source>is a longer number</source>
        <translation>ist eine längere Zahl</translation>
    </message>
    <message>
        <source>is the text %1</source>
        <translation>ist der Text %1</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list of objects</source>
        <translation>eine Liste von Objekten</translation>
    </message>
    <message>
        <source>an integer of 64 bits</source>
        <translation>eine ganze Zahl mit 64 Bit</translation>
    </message>
    <message>
        <source>an integer of 32 bits</source>
        <translation>eine ganze Zahl mit 32 Bit</translation>
    </message>
    <message>
        <source>an integer from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>nobody reads this member</source>
        <translation>niemand liest dieses Element</translation>
    </message>
    <message>
        <source>stands here again; only the first is read</source>
        <translation>steht hier noch einmal; nur das erste wird gelesen</translation>
    </message>
    <message>
        <source>is %1, but the list is empty</source>
        <translation>ist %1, aber die Liste ist leer</translation>
    </message>
    <message>
        <source>0 or -1</source>
        <translation>0 oder -1</translation>
    </message>
    <message>
        <source>is %1, but the list has %2 entry</source>
        <translation>ist %1, aber die Liste hat %2 Eintrag</translation>
    </message>
    <message>
        <source>is %1, but the list has %2 entries</source>
        <translation>ist %1, aber die Liste hat %2 Einträge</translation>
    </message>
    <message>
        <source>-1 to %1</source>
        <translation>-1 bis %1</translation>
    </message>
    <message>
        <source>no codec %1</source>
        <translation>kein Codec %1</translation>
    </message>
    <message>
        <source>no codec of this kind</source>
        <translation>kein Codec dieser Art</translation>
    </message>
    <message>
        <source>a number that &quot;vxpresets codecs&quot; lists</source>
        <translation>eine Zahl, die „vxpresets codecs“ nennt</translation>
    </message>
    <message>
        <source>%1 does not take %2 here</source>
        <translation>%1 nimmt hier %2 nicht auf</translation>
    </message>
    <message>
        <source>%1 does not take %2</source>
        <translation>%1 nimmt %2 nicht an</translation>
    </message>
    <message>
        <source>%1 does not take %2; expected %3</source>
        <translation>%1 nimmt %2 nicht an; erwartet: %3</translation>
    </message>
    <message>
        <source>nobody reads the name of a codec</source>
        <translation>niemand liest den Namen eines Codecs</translation>
    </message>
    <message>
        <source>is Custom, whose bitrate no document holds</source>
        <translation>ist „Eigene“, deren Bitrate in kein Dokument passt</translation>
    </message>
    <message>
        <source>0 to 4, and bounds</source>
        <translation>0 bis 4, und Grenzen</translation>
    </message>
    <message>
        <source>a ratio without a type is square</source>
        <translation>ein Verhältnis ohne Typ ist quadratisch</translation>
    </message>
    <message>
        <source>type 13 beside num and den</source>
        <translation>Typ 13 neben num und den</translation>
    </message>
    <message>
        <source>type 13 without a ratio</source>
        <translation>Typ 13 ohne Verhältnis</translation>
    </message>
    <message>
        <source>num and den above 0</source>
        <translation>num und den über 0</translation>
    </message>
    <message>
        <source>%1 is Auto</source>
        <translation>%1 ist Auto</translation>
    </message>
    <message>
        <source>both sides above 0, or both 0</source>
        <translation>beide Seiten über 0, oder beide 0</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <translation>%1 Bilder je Sekunde</translation>
    </message>
    <message>
        <source>num and den above 0, or num 0</source>
        <translation>num und den über 0, oder num 0</translation>
    </message>
    <message>
        <source>a rate above 0, or 0</source>
        <translation>eine Rate über 0, oder 0</translation>
    </message>
    <message>
        <source>the channel layout %1</source>
        <translation>die Kanalanordnung %1</translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>Level %1</translation>
    </message>
    <message>
        <source>none, for the codec has no pictures</source>
        <translation>keine, denn der Codec hat keine Bilder</translation>
    </message>
    <message>
        <source>none, for the codec has no sound</source>
        <translation>keine, denn der Codec hat keinen Ton</translation>
    </message>
    <message>
        <source>no container %1 can be written here</source>
        <translation>kein Container %1 lässt sich hier schreiben</translation>
    </message>
    <message>
        <source>formatName is absent</source>
        <translation>formatName fehlt</translation>
    </message>
    <message>
        <source>no icon %1 in the artwork file</source>
        <translation>kein Symbol %1 in der Symboldatei</translation>
    </message>
    <message>
        <source>bounds nothing</source>
        <translation>begrenzt nichts</translation>
    </message>
    <message>
        <source>maxWidth and maxHeight above 0</source>
        <translation>maxWidth und maxHeight über 0</translation>
    </message>
    <message>
        <source>0 is a bound</source>
        <translation>0 ist eine Grenze</translation>
    </message>
    <message>
        <source>-1 for none, or above 0</source>
        <translation>-1 für keine, oder über 0</translation>
    </message>
    <message>
        <source>is %1, and %2 is %3</source>
        <translation>ist %1, und %2 ist %3</translation>
    </message>
    <message>
        <source>has the name of number %1, too</source>
        <translation>heißt wie Nummer %1</translation>
    </message>
    <message>
        <source>a name of its own</source>
        <translation>ein eigener Name</translation>
    </message>
    <message>
        <source>larger than 4 MiB</source>
        <translation>größer als 4 MiB</translation>
    </message>
    <message>
        <source>is neither JSON, as HandBrake exports presets, nor an encoding target of GStreamer</source>
        <translation>ist weder JSON, wie HandBrake Vorgaben exportiert, noch ein Kodierziel von GStreamer</translation>
    </message>
    <message>
        <source>holds no preset that could be ours</source>
        <translation>enthält keine Vorgabe, die hier eine sein könnte</translation>
    </message>
    <message>
        <source>holds no preset that could be ours; %1</source>
        <translation>enthält keine Vorgabe, die hier eine sein könnte; %1</translation>
    </message>
    <message>
        <source>folders lie deeper than %1 in each other</source>
        <translation>Ordner liegen tiefer als %1 ineinander</translation>
    </message>
    <message>
        <source>more than %1 presets</source>
        <translation>mehr als %1 Vorgaben</translation>
    </message>
    <message>
        <source>has no &quot;PresetList&quot;, as files that HandBrake exports have</source>
        <translation>hat kein „PresetList“, wie es Dateien haben, die HandBrake exportiert</translation>
    </message>
    <message>
        <source>has no [%1]</source>
        <translation>hat kein [%1]</translation>
    </message>
    <message>
        <source>is no preset</source>
        <translation>ist keine Vorgabe</translation>
    </message>
    <message>
        <source>a name of %1 bytes is cut</source>
        <translation>ein Name von %1 Bytes wird gekürzt</translation>
    </message>
    <message>
        <source>%1 is no key=value</source>
        <translation>%1 ist kein Schlüssel=Wert</translation>
    </message>
    <message>
        <source>a value stands in front of the first group</source>
        <translation>ein Wert steht vor der ersten Gruppe</translation>
    </message>
    <message>
        <source>a group&apos;s name ends in ]</source>
        <translation>der Name einer Gruppe endet mit ]</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation>erwartet: %1</translation>
    </message>
    <message>
        <source>expected a word</source>
        <translation>ein Wort erwartet</translation>
    </message>
    <message>
        <source>a range has two ends</source>
        <translation>ein Bereich hat zwei Enden</translation>
    </message>
    <message>
        <source>expected ; or the end</source>
        <translation>; oder das Ende erwartet</translation>
    </message>
    <message>
        <source>a preset here has no filters and crops nothing</source>
        <translation>eine Vorgabe hat hier keine Filter und schneidet nichts ab</translation>
    </message>
    <message>
        <source>a setting of the encoder, of which a preset here has none</source>
        <translation>eine Einstellung des Encoders, von denen eine Vorgabe hier keine hat</translation>
    </message>
    <message>
        <source>a setting of the container, of which a preset here has none</source>
        <translation>eine Einstellung des Containers, von denen eine Vorgabe hier keine hat</translation>
    </message>
    <message>
        <source>which tracks of the source are taken is no matter of a preset here</source>
        <translation>welche Spuren der Quelle genommen werden, bestimmt hier keine Vorgabe</translation>
    </message>
    <message>
        <source>a preset here has no subtitles</source>
        <translation>eine Vorgabe hat hier keine Untertitel</translation>
    </message>
    <message>
        <source>nothing is passed through here</source>
        <translation>hier wird nichts durchgereicht</translation>
    </message>
    <message>
        <source>an output has one sound track</source>
        <translation>eine Ausgabe hat eine Tonspur</translation>
    </message>
    <message>
        <source>an output has one picture and one sound track</source>
        <translation>eine Ausgabe hat eine Bild- und eine Tonspur</translation>
    </message>
    <message>
        <source>a preset here does not change how loud the sound is</source>
        <translation>eine Vorgabe ändert hier die Lautstärke nicht</translation>
    </message>
    <message>
        <source>samples are square, or have the chosen shape</source>
        <translation>Pixel sind quadratisch oder haben die gewählte Form</translation>
    </message>
    <message>
        <source>sides are what the codec takes</source>
        <translation>die Seiten sind, was der Codec annimmt</translation>
    </message>
    <message>
        <source>pictures are made as large as the source and the bounds say</source>
        <translation>Bilder werden so groß, wie es die Quelle und die Grenzen vorgeben</translation>
    </message>
    <message>
        <source>bounds are not reached by scaling up</source>
        <translation>Grenzen werden nicht durch Vergrößern erreicht</translation>
    </message>
    <message>
        <source>colours are the source&apos;s</source>
        <translation>die Farben sind die der Quelle</translation>
    </message>
    <message>
        <source>decoding is no matter of a preset here</source>
        <translation>das Dekodieren bestimmt hier keine Vorgabe</translation>
    </message>
    <message>
        <source>a preset here has no chapters</source>
        <translation>eine Vorgabe hat hier keine Kapitel</translation>
    </message>
    <message>
        <source>a preset here has no metadata</source>
        <translation>eine Vorgabe hat hier keine Metadaten</translation>
    </message>
    <message>
        <source>nothing is known of it</source>
        <translation>darüber ist nichts bekannt</translation>
    </message>
    <message>
        <source>samples are made square, with the shape of the picture kept</source>
        <translation>Pixel werden quadratisch, die Form des Bildes bleibt</translation>
    </message>
    <message>
        <source>the preset names no container</source>
        <translation>die Vorgabe nennt keinen Container</translation>
    </message>
    <message>
        <source>no container here is %1</source>
        <translation>kein Container heißt hier %1</translation>
    </message>
    <message>
        <source>no codec here is %1</source>
        <translation>kein Codec heißt hier %1</translation>
    </message>
    <message>
        <source>%1 becomes the codec; which encoder makes it is not chosen here</source>
        <translation>%1 wird zum Codec; welcher Encoder ihn erzeugt, wird hier nicht gewählt</translation>
    </message>
    <message>
        <source>the preset names no video encoder</source>
        <translation>die Vorgabe nennt keinen Videoencoder</translation>
    </message>
    <message>
        <source>%1 frames per second at most becomes that rate</source>
        <translation>höchstens %1 Bilder je Sekunde wird zu dieser Rate</translation>
    </message>
    <message>
        <source>neither an average bitrate nor a constant quality</source>
        <translation>weder eine mittlere Bitrate noch eine konstante Qualität</translation>
    </message>
    <message>
        <source>the encoder has no scale of quality that is known here</source>
        <translation>der Encoder hat keine Qualitätsskala, die hier bekannt ist</translation>
    </message>
    <message>
        <source>a constant quality of %1 becomes the grade %2</source>
        <translation>eine konstante Qualität von %1 wird zur Stufe %2</translation>
    </message>
    <message>
        <source>sound has no quality scale of the encoder here</source>
        <translation>Ton hat hier keine Qualitätsskala des Encoders</translation>
    </message>
    <message>
        <source>nothing is passed through here: the sound is encoded with %1</source>
        <translation>hier wird nichts durchgereicht: der Ton wird mit %1 kodiert</translation>
    </message>
    <message>
        <source>no channel layout here is %1</source>
        <translation>keine Kanalanordnung heißt hier %1</translation>
    </message>
    <message>
        <source>%1 becomes plain %2</source>
        <translation>%1 wird zu einfachem %2</translation>
    </message>
    <message>
        <source>the first of %1 alternatives is taken</source>
        <translation>die erste von %1 Möglichkeiten wird genommen</translation>
    </message>
    <message>
        <source>the first of %1 values is taken</source>
        <translation>der erste von %1 Werten wird genommen</translation>
    </message>
    <message>
        <source>the first of several sizes is taken</source>
        <translation>die erste von mehreren Größen wird genommen</translation>
    </message>
    <message>
        <source>the profile names no format</source>
        <translation>das Profil nennt kein Format</translation>
    </message>
    <message>
        <source>the stream names no format</source>
        <translation>die Spur nennt kein Format</translation>
    </message>
    <message>
        <source>nothing here is %1</source>
        <translation>nichts heißt hier %1</translation>
    </message>
    <message>
        <source>a bound of one side bounds nothing here</source>
        <translation>eine Grenze einer Seite begrenzt hier nichts</translation>
    </message>
    <message>
        <source>the range is empty</source>
        <translation>der Bereich ist leer</translation>
    </message>
    <message>
        <source>a range has no place here; the source&apos;s value is taken</source>
        <translation>ein Bereich passt hier nicht; der Wert der Quelle wird genommen</translation>
    </message>
    <message>
        <source>a document has one language</source>
        <translation>ein Dokument hat eine Sprache</translation>
    </message>
    <message>
        <source>a document has no kinds of categories</source>
        <translation>ein Dokument hat keine Arten von Kategorien</translation>
    </message>
    <message>
        <source>belongs to no profile</source>
        <translation>gehört zu keinem Profil</translation>
    </message>
    <message>
        <source>%1 is none of %2</source>
        <translation>%1 ist keines von %2</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 ist nicht %2</translation>
    </message>
    <message>
        <source>%1 is not UTF-8</source>
        <translation>%1 ist nicht UTF-8</translation>
    </message>
    <message>
        <source>a number of pixels or none</source>
        <translation>eine Anzahl von Pixeln oder „none“</translation>
    </message>
    <message>
        <source>a size such as 1280x720, or none</source>
        <translation>eine Größe wie 1280x720 oder „none“</translation>
    </message>
    <message>
        <source>a bitrate such as 8M or 192k, or none</source>
        <translation>eine Bitrate wie 8M oder 192k oder „none“</translation>
    </message>
    <message>
        <source>%1 is no ratio such as 4:3 and none of %2</source>
        <translation>%1 ist kein Verhältnis wie 4:3 und keines von %2</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>variable</source>
        <translation>variabel</translation>
    </message>
    <message>
        <source>constant</source>
        <translation>konstant</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Quad</source>
        <translation>Quadro</translation>
    </message>
    <message>
        <source>%1 (back)</source>
        <translation>%1 (hinten)</translation>
    </message>
    <message>
        <source>%1 (wide)</source>
        <translation>%1 (weit)</translation>
    </message>
    <message>
        <source>%1 channel</source>
        <translation>%1 Kanal</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>%1-bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>%1-bit float</source>
        <translation>%1 Bit Gleitkomma</translation>
    </message>
    <message>
        <source>%1 planar</source>
        <translation>%1 planar</translation>
    </message>
    <message>
        <source>%1 full range</source>
        <translation>%1, voller Wertebereich</translation>
    </message>
    <message>
        <source>%1 with alpha</source>
        <translation>%1 mit Alpha</translation>
    </message>
    <message>
        <source>%1 with alpha first</source>
        <translation>%1 mit Alpha zuerst</translation>
    </message>
    <message>
        <source>%1 semi-planar</source>
        <translation>%1 semiplanar</translation>
    </message>
    <message>
        <source>%1 semi-planar, V first</source>
        <translation>%1 semiplanar, V zuerst</translation>
    </message>
    <message>
        <source>%1 packed, Y first</source>
        <translation>%1 gepackt, Y zuerst</translation>
    </message>
    <message>
        <source>%1 packed, U first</source>
        <translation>%1 gepackt, U zuerst</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Gray %1</source>
        <translation>Grau %1</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Black and white, inverted</source>
        <translation>Schwarzweiß, umgekehrt</translation>
    </message>
    <message>
        <source>%1, padded</source>
        <translation>%1, aufgefüllt</translation>
    </message>
    <message>
        <source>RGB planar %1</source>
        <translation>RGB planar %1</translation>
    </message>
    <message>
        <source>Palette of 256 colors</source>
        <translation>Palette mit 256 Farben</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>chosen in the preset</source>
        <translation>in der Vorgabe gewählt</translation>
    </message>
    <message>
        <source>chosen in the preset (%1)</source>
        <translation>in der Vorgabe gewählt (%1)</translation>
    </message>
    <message>
        <source>taken from the source</source>
        <translation>aus der Quelle</translation>
    </message>
    <message>
        <source>taken from the source as displayed</source>
        <translation>aus der Quelle, wie dargestellt</translation>
    </message>
    <message>
        <source>first of the list</source>
        <translation>das Erste der Liste</translation>
    </message>
    <message>
        <source>first of the list with an encoder here</source>
        <translation>der Erste der Liste, für den es hier einen Encoder gibt</translation>
    </message>
    <message>
        <source>first of the list: none has an encoder here</source>
        <translation>der Erste der Liste: für keinen gibt es hier einen Encoder</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>dem Encoder überlassen</translation>
    </message>
    <message>
        <source>left to the container</source>
        <translation>dem Container überlassen</translation>
    </message>
    <message>
        <source>the codec&apos;s usual as none is known</source>
        <translation>das Übliche des Codecs, da nichts bekannt ist</translation>
    </message>
    <message>
        <source>snapped by the codec</source>
        <translation>vom Codec angepasst</translation>
    </message>
    <message>
        <source>snapped by the codec from %1</source>
        <translation>vom Codec angepasst, statt %1</translation>
    </message>
    <message>
        <source>snapped to that of the profile %1</source>
        <translation>an das Profil %1 angepasst</translation>
    </message>
    <message>
        <source>snapped to that of the profile %1 from %2</source>
        <translation>an das Profil %1 angepasst, statt %2</translation>
    </message>
    <message>
        <source>set by the container %1</source>
        <translation>vom Container %1 bestimmt</translation>
    </message>
    <message>
        <source>set by the container %1 from %2</source>
        <translation>vom Container %1 bestimmt, statt %2</translation>
    </message>
    <message>
        <source>bounded by the preset (%1) from %2</source>
        <translation>von der Vorgabe begrenzt (%1), statt %2</translation>
    </message>
    <message>
        <source>at most %1 wide</source>
        <translation>höchstens %1 breit</translation>
    </message>
    <message>
        <source>at least %1 wide</source>
        <translation>mindestens %1 breit</translation>
    </message>
    <message>
        <source>at most %1 high</source>
        <translation>höchstens %1 hoch</translation>
    </message>
    <message>
        <source>at least %1 high</source>
        <translation>mindestens %1 hoch</translation>
    </message>
    <message>
        <source>%1 wide and %2 high</source>
        <translation>%1 breit und %2 hoch</translation>
    </message>
    <message>
        <source>from size and sample aspect</source>
        <translation>aus Maßen und Pixelverhältnis</translation>
    </message>
    <message>
        <source>from the model at %1 (%2)</source>
        <translation>nach dem Modell bei %1 (%2)</translation>
    </message>
    <message>
        <source>from the model: the same at every grade</source>
        <translation>nach dem Modell: auf jeder Stufe gleich</translation>
    </message>
    <message>
        <source>the source&apos;s grade</source>
        <translation>der Stufe der Quelle</translation>
    </message>
    <message>
        <source>as the source&apos;s bitrate is not known</source>
        <translation>da die Bitrate der Quelle nicht bekannt ist</translation>
    </message>
    <message>
        <source>as the source&apos;s codec is not known</source>
        <translation>da der Codec der Quelle nicht bekannt ist</translation>
    </message>
    <message>
        <source>the codec&apos;s highest fixed bitrate</source>
        <translation>die höchste feste Bitrate des Codecs</translation>
    </message>
    <message>
        <source>bounded by the preset (%1) at %2 (%3)</source>
        <translation>von der Vorgabe begrenzt (%1) bei %2 (%3)</translation>
    </message>
    <message>
        <source>bounded by the preset (%1) against the codec&apos;s %2</source>
        <translation>von der Vorgabe begrenzt (%1), gegen %2 des Codecs</translation>
    </message>
    <message>
        <source>a bitrate chosen is its own highest</source>
        <translation>eine gewählte Bitrate ist zugleich die höchste</translation>
    </message>
    <message>
        <source>a constant bitrate is its own lowest</source>
        <translation>eine konstante Bitrate ist zugleich die niedrigste</translation>
    </message>
    <message>
        <source>as no bitrate is chosen</source>
        <translation>da keine Bitrate gewählt ist</translation>
    </message>
    <message>
        <source>%1: no file can be made</source>
        <translation>%1: es entsteht keine Datei</translation>
    </message>
    <message>
        <source>nothing of the source is left</source>
        <translation>von der Quelle bleibt nichts übrig</translation>
    </message>
    <message>
        <source>%1 needs a picture</source>
        <translation>%1 braucht ein Bild</translation>
    </message>
    <message>
        <source>the preset&apos;s codec %1 is not known; the preset stays as it is</source>
        <translation>der Codec %1 der Vorgabe ist nicht bekannt; die Vorgabe bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>%1 has no encoder here; the preset stays as it is and cannot be encoded</source>
        <translation>für %1 gibt es hier keinen Encoder; die Vorgabe bleibt, wie sie ist, und lässt sich nicht umwandeln</translation>
    </message>
    <message>
        <source>level %1 is too low for %2 at %3 and %4</source>
        <translation>Level %1 ist zu niedrig für %2 bei %3 und %4</translation>
    </message>
    <message>
        <source>raise the level to %1</source>
        <translation>das Level auf %1 anheben</translation>
    </message>
    <message>
        <source>lower the bitrate to %1</source>
        <translation>die Bitrate auf %1 senken</translation>
    </message>
    <message>
        <source>lower the bitrate to %1 (%2 % less)</source>
        <translation>die Bitrate auf %1 senken (%2 % weniger)</translation>
    </message>
    <message>
        <source>lower the frame rate to %1</source>
        <translation>die Bildrate auf %1 senken</translation>
    </message>
    <message>
        <source>lower the frame rate to %1 (%2 % less)</source>
        <translation>die Bildrate auf %1 senken (%2 % weniger)</translation>
    </message>
    <message>
        <source>lower the size to %1</source>
        <translation>die Maße auf %1 senken</translation>
    </message>
    <message>
        <source>lower the size to %1 (%2 % less)</source>
        <translation>die Maße auf %1 senken (%2 % weniger)</translation>
    </message>
    <message>
        <source>lower the size to %1 and the bitrate to %2</source>
        <translation>die Maße auf %1 und die Bitrate auf %2 senken</translation>
    </message>
    <message>
        <source>lower the size to %1 and the bitrate to %2 (%3 % less)</source>
        <translation>die Maße auf %1 und die Bitrate auf %2 senken (%3 % weniger)</translation>
    </message>
    <message>
        <source>the bitrate %1 is above the source&apos;s %2</source>
        <translation>die Bitrate %1 liegt über der der Quelle, %2</translation>
    </message>
    <message>
        <source>the picture is enlarged from %1 to %2</source>
        <translation>das Bild wird von %1 auf %2 vergrößert</translation>
    </message>
    <message>
        <source>the bounds change the frame&apos;s shape from %1 to %2</source>
        <translation>die Grenzen ändern die Form des Bildes von %1 auf %2</translation>
    </message>
    <message>
        <source>pixel format %1 is not taken; %2 stands in</source>
        <translation>das Pixelformat %1 wird nicht angenommen; %2 tritt an seine Stelle</translation>
    </message>
    <message>
        <source>sample format %1 is not taken; %2 stands in</source>
        <translation>das Abtastformat %1 wird nicht angenommen; %2 tritt an seine Stelle</translation>
    </message>
    <message>
        <source>bitrate %1 is not taken; %2 stands in</source>
        <translation>die Bitrate %1 wird nicht angenommen; %2 tritt an ihre Stelle</translation>
    </message>
    <message>
        <source>constant bitrate is not taken; a variable one stands in</source>
        <translation>eine konstante Bitrate wird nicht angenommen; eine variable tritt an ihre Stelle</translation>
    </message>
    <message>
        <source>bounds of the bitrate are not taken; none stand in</source>
        <translation>Grenzen der Bitrate werden nicht angenommen; es gibt keine</translation>
    </message>
    <message>
        <source>constant bitrate is not filled up where pictures take less</source>
        <translation>die konstante Bitrate wird nicht aufgefüllt, wo Bilder weniger brauchen</translation>
    </message>
    <message>
        <source>bounds of the bitrate are not filled up where pictures take less</source>
        <translation>die untere Grenze der Bitrate wird nicht aufgefüllt, wo Bilder weniger brauchen</translation>
    </message>
    <message>
        <source>profile %1 cannot hold %2; %3 stands in</source>
        <translation>das Profil %1 fasst %2 nicht; %3 tritt an seine Stelle</translation>
    </message>
    <message>
        <source>level %1 cannot hold %2; %3 stands in</source>
        <translation>das Level %1 fasst %2 nicht; %3 tritt an seine Stelle</translation>
    </message>
    <message>
        <source>level %1 is not made; %2 stands in</source>
        <translation>das Level %1 wird nicht erzeugt; %2 tritt an seine Stelle</translation>
    </message>
    <message>
        <source>the encoder&apos;s choice</source>
        <translation>die Wahl des Encoders</translation>
    </message>
    <message>
        <source>the stream</source>
        <translation>die Spur</translation>
    </message>
    <message>
        <source>the name %1 does not end as %2 files do</source>
        <translation>der Name %1 endet nicht wie bei %2-Dateien</translation>
    </message>
    <message>
        <source>the container %1 cannot be written here</source>
        <translation>der Container %1 lässt sich hier nicht schreiben</translation>
    </message>
    <message>
        <source>codec %1 is not known</source>
        <translation>der Codec %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 has no encoder %2 here</source>
        <translation>für %1 gibt es hier den Encoder %2 nicht</translation>
    </message>
    <message>
        <source>ffmpeg wrote nothing</source>
        <translation>ffmpeg hat nichts geschrieben</translation>
    </message>
    <message>
        <source>ffmpeg failed: %1</source>
        <translation>ffmpeg ist gescheitert: %1</translation>
    </message>
    <message>
        <source>there is no such program in PATH</source>
        <translation>dieses Programm gibt es in PATH nicht</translation>
    </message>
    <message>
        <source>it was ended by a signal: %1</source>
        <translation>es wurde durch ein Signal beendet: %1</translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation>es nennt keinen Grund</translation>
    </message>
    <message>
        <source>the file to write has no name</source>
        <translation>die zu schreibende Datei hat keinen Namen</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is there already</source>
        <translation>gibt es schon</translation>
    </message>
    <message>
        <source>is the source itself</source>
        <translation>ist die Quelle selbst</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a directory, not a file</source>
        <translation>ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>cannot be looked up (%1)</source>
        <translation>lässt sich nicht nachsehen (%1)</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>cannot be opened (%1)</source>
        <translation>lässt sich nicht öffnen (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>is not a media file of a known kind</source>
        <translation>ist keine Mediendatei einer bekannten Art</translation>
    </message>
    <message>
        <source>is %1, not a media file</source>
        <translation>ist %1, keine Mediendatei</translation>
    </message>
    <message>
        <source>a playlist</source>
        <translation>eine Abspielliste</translation>
    </message>
    <message>
        <source>a still picture</source>
        <translation>ein Standbild</translation>
    </message>
    <message>
        <source>the description of a network stream</source>
        <translation>die Beschreibung eines Netzwerkstroms</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>takes too long to read (more than %1 seconds)</source>
        <translation>braucht zu lange zum Lesen (mehr als %1 Sekunden)</translation>
    </message>
    <message>
        <source>is damaged or cut off (its description has no end)</source>
        <translation>ist beschädigt oder abgeschnitten (ihre Beschreibung hat kein Ende)</translation>
    </message>
    <message>
        <source>is damaged (it asks for more streams or memory than a media file may have)</source>
        <translation>ist beschädigt (sie verlangt mehr Spuren oder Speicher, als eine Mediendatei haben darf)</translation>
    </message>
    <message>
        <source>is damaged or cut off (%1)</source>
        <translation>ist beschädigt oder abgeschnitten (%1)</translation>
    </message>
    <message>
        <source>has a compressed description, which is not read</source>
        <translation>hat eine gepackte Beschreibung, die nicht gelesen wird</translation>
    </message>
    <message>
        <source>is damaged (it tells of %1 samples in %2 bytes)</source>
        <translation>ist beschädigt (sie nennt %1 Samples in %2 Bytes)</translation>
    </message>
    <message>
        <source>is damaged or cut off (no stream tells its size or its sample rate)</source>
        <translation>ist beschädigt oder abgeschnitten (keine Spur nennt ihre Größe oder Abtastrate)</translation>
    </message>
    <message>
        <source>holds neither video nor audio</source>
        <translation>enthält weder Video noch Ton</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>larger than 4 GiB</source>
        <translation>größer als 4 GiB</translation>
    </message>
    <message>
        <source>the document is larger than 4 GiB</source>
        <translation>das Dokument ist größer als 4 GiB</translation>
    </message>
    <message>
        <source>is write-protected</source>
        <translation>ist schreibgeschützt</translation>
    </message>
    <message>
        <source>is a link to a file that is not there</source>
        <translation>ist eine Verknüpfung mit einer Datei, die es nicht gibt</translation>
    </message>
    <message>
        <source>not changed: %1</source>
        <translation>nicht geändert: %1</translation>
    </message>
    <message>
        <source>not written, for it could not be read again: %1</source>
        <translation>nicht geschrieben, denn es ließe sich nicht wieder lesen: %1</translation>
    </message>
    <message>
        <source>what it becomes cannot be read: %1</source>
        <translation>was daraus wird, lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>nested too deeply to be written as a document that can be read again</source>
        <translation>zu tief verschachtelt, um als Dokument geschrieben zu werden, das sich wieder lesen lässt</translation>
    </message>
    <message>
        <source>is not a JSON object</source>
        <translation>ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>is not a preset document</source>
        <translation>ist kein Vorgabendokument</translation>
    </message>
    <message>
        <source>holds presets of another program, which can be imported</source>
        <translation>enthält Vorgaben eines anderen Programms, die sich importieren lassen</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>die Datei gibt es schon</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Gerät oder Adresse nicht gefunden</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>das Speicherkontingent ist erschöpft</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Invalid data found when processing input</source>
        <translation>ungültige Daten in der Eingabe</translation>
    </message>
    <message>
        <source>End of file</source>
        <translation>Ende der Datei</translation>
    </message>
    <message>
        <source>b/s</source>
        <translation>bit/s</translation>
    </message>
    <message>
        <source>kb/s</source>
        <translation>kbit/s</translation>
    </message>
    <message>
        <source>Mb/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1 Hz is Auto</source>
        <translation>%1 Hz ist Auto</translation>
    </message>
    <message>
        <source>categories are nested too deep for a document</source>
        <translation>Kategorien sind zu tief für ein Dokument verschachtelt</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>is no list of recently used presets</source>
        <translation>ist keine Liste zuletzt verwendeter Vorgaben</translation>
    </message>
    <message>
        <source>another program is writing it</source>
        <translation>ein anderes Programm schreibt gerade hinein</translation>
    </message>
    <message>
        <source>bounded by the preset (%1)</source>
        <translation>von der Vorgabe begrenzt (%1)</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::TreeActions</name>
    <message>
        <source>New &amp;Preset</source>
        <translation>&amp;Neue Vorgabe</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>C&amp;lone into Customised</source>
        <translation>In „Customised“ &amp;klonen</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach u&amp;nten</translation>
    </message>
    <message>
        <source>New C&amp;ategory</source>
        <translation>Neue Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Neue Kategorie</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Recently used presets come and go: what is new stands in &quot;%1&quot;.</source>
        <translation>Zuletzt benutzte Vorgaben kommen und gehen: Neues steht in „%1“.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::TreeEditor</name>
    <message>
        <source>A name cannot be empty.</source>
        <translation>Ein Name kann nicht leer sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Delete Selection</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Neue Kategorie</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Neue Vorgabe</translation>
    </message>
    <message>
        <source>A category cannot be moved into itself.</source>
        <translation>Eine Kategorie lässt sich nicht in sich selbst verschieben.</translation>
    </message>
    <message>
        <source>Recently used presets come and go: move yours elsewhere.</source>
        <translation>Zuletzt benutzte Vorgaben kommen und gehen: Eigenes bitte anderswohin verschieben.</translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::TreePane</name>
    <message>
        <source>Search presets</source>
        <translation>Vorgaben suchen</translation>
    </message>
    <message>
        <source>Shows what has all of these words in its name, path or container</source>
        <translation>Zeigt, was alle diese Wörter in Namen, Pfad oder Container hat</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>No preset has all of these words.
Press Esc to see all presets.</source>
        <translation>Keine Vorgabe hat alle diese Wörter.
Esc zeigt wieder alle Vorgaben.</translation>
    </message>
    <message numerus="yes">
        <source>%n preset(s) found</source>
        <translation>
            <numerusform>%n Vorgabe gefunden</numerusform>
            <numerusform>%n Vorgaben gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>This document has no presets yet. Make one with Presets &gt; New Preset, or bring in those of another program with Presets &gt; Import.</source>
        <translation>Dieses Dokument hat noch keine Vorgaben. Legen Sie mit Vorgaben &gt; Neue Vorgabe eine an, oder holen Sie mit Vorgaben &gt; Importieren die eines anderen Programms.</translation>
    </message>
    <message>
        <source>Recently used presets come and go: &quot;%1&quot; stands in &quot;%2&quot; now.</source>
        <translation>Zuletzt benutzte Vorgaben kommen und gehen: „%1“ steht nun in „%2“.</translation>
    </message>
</context>
</TS>
