<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>LayerControl</name>
    <message>
        <source>&quot;^1&quot; is no language. Languages are written as &quot;nl&quot; or &quot;pt-BR&quot;, for example.</source>
        <translation>„^1“ ist keine Sprache. Sprachen schreibt man zum Beispiel „nl“ oder „pt-BR“.</translation>
    </message>
    <message>
        <source>&quot;dont care&quot; means that there is no limit.</source>
        <translation>„beliebig“ bedeutet, dass es keine Grenze gibt.</translation>
    </message>
    <message>
        <source>&quot;Show Only These&quot; has not changed any layer.</source>
        <translation>„Nur diese einblenden“ hat keinen Layer geändert.</translation>
    </message>
    <message>
        <source>&amp;Manage Schemes...</source>
        <translation>Schemas &amp;verwalten...</translation>
    </message>
    <message>
        <source>&amp;Map&apos;s Scale (^1)</source>
        <translation>&amp;Kartenmaßstab (^1)</translation>
    </message>
    <message>
        <source>(OBS): obscured; the layer is not drawn at the current scale.</source>
        <translation>(OBS): verdeckt; der Layer wird im aktuellen Maßstab nicht gezeichnet.</translation>
    </message>
    <message>
        <source>(SUP): suppressed; the layer is not drawn, for example because its data cannot be read.</source>
        <translation>(SUP): unterdrückt; der Layer wird nicht gezeichnet, zum Beispiel weil seine Daten nicht gelesen werden können.</translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 Layer</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 Pixel</translation>
    </message>
    <message>
        <source>&apos;^1&apos; is not a number.</source>
        <translation>„^1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>1:^1</source>
        <translation>1:^1</translation>
    </message>
    <message>
        <source>&lt;No Name&gt;</source>
        <translation>&lt;Ohne Namen&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;keine&gt;</translation>
    </message>
    <message>
        <source>These groups have no layers.</source>
        <translation>Diese Gruppen enthalten keine Layer.</translation>
    </message>
    <message>
        <source>This group has no layers.</source>
        <translation>Diese Gruppe enthält keine Layer.</translation>
    </message>
    <message>
        <source>With the scales of this map, this range is empty.</source>
        <translation>Mit den Maßstäben dieser Karte ist dieser Bereich leer.</translation>
    </message>
    <message>
        <source>[various]</source>
        <translation>[verschiedene]</translation>
    </message>
    <message>
        <source>^1 &apos;^2&apos; is not a number.</source>
        <translation>^1: „^2“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>^1 (highest)</source>
        <translation>^1 (höchste)</translation>
    </message>
    <message>
        <source>^1 (lowest)</source>
        <translation>^1 (niedrigste)</translation>
    </message>
    <message>
        <source>^1 ^2 cannot be used.</source>
        <translation>^1 ^2 kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>^1 ^2 is too large.</source>
        <translation>^1 ^2 ist zu groß.</translation>
    </message>
    <message>
        <source>^1 ^2 is too small.</source>
        <translation>^1 ^2 ist zu klein.</translation>
    </message>
    <message>
        <source>^1 has no value.</source>
        <translation>^1 hat keinen Wert.</translation>
    </message>
    <message>
        <source>^1 layers</source>
        <translation>^1 Layer</translation>
    </message>
    <message>
        <source>^1 mm will be stored.</source>
        <translation>Gespeichert werden ^1 mm.</translation>
    </message>
    <message>
        <source>^1 of ^2</source>
        <translation>^1 von ^2</translation>
    </message>
    <message>
        <source>^1 pixels will be stored.</source>
        <translation>Gespeichert werden ^1 Pixel.</translation>
    </message>
    <message>
        <source>^1 to ^2</source>
        <translation>^1 bis ^2</translation>
    </message>
    <message>
        <source>^1: ^2</source>
        <translation>^1: ^2</translation>
    </message>
    <message>
        <source>A click on an object of the layer can show its attributes. Needs a hitable layer.</source>
        <translation>Ein Klick auf ein Objekt des Layers kann dessen Attribute zeigen. Setzt einen anklickbaren Layer voraus.</translation>
    </message>
    <message>
        <source>A size has no finite value in pixels.</source>
        <translation>Eine Größe hat keinen endlichen Wert in Pixeln.</translation>
    </message>
    <message>
        <source>A value of this group cannot be read.</source>
        <translation>Ein Wert dieser Gruppe kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A value of this layer cannot be read.</source>
        <translation>Ein Wert dieses Layers kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>All of these layers are hidden already.</source>
        <translation>Alle diese Layer sind schon ausgeblendet.</translation>
    </message>
    <message>
        <source>All of these layers are shown already.</source>
        <translation>Alle diese Layer sind schon eingeblendet.</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action.</source>
        <translation>Ein unerwarteter Fehler hat die Aktion abgebrochen.</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action: ^1</source>
        <translation>Ein unerwarteter Fehler hat die Aktion abgebrochen: ^1</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>An&amp;wenden</translation>
    </message>
    <message>
        <source>Are you sure you wish to save the colour schemes to the startup database?</source>
        <translation>Möchten Sie die Farbschemas wirklich in der Startdatenbank speichern?</translation>
    </message>
    <message>
        <source>&amp;Backdrop</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>Füllhi&amp;ntergrund:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ab&amp;brechen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code ^1 has already been assigned. Please assign another code.</source>
        <translation>Code ^1 ist bereits vergeben. Bitte vergeben Sie einen anderen Code.</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;ode:</translation>
    </message>
    <message>
        <source>Code: ^1</source>
        <translation>Code: ^1</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Einstellungen kopieren</translation>
    </message>
    <message>
        <source>Copy the settings of a layer or a group first.</source>
        <translation>Kopieren Sie zuerst die Einstellungen eines Layers oder einer Gruppe.</translation>
    </message>
    <message>
        <source>Create a layer.</source>
        <translation>Einen Layer anlegen.</translation>
    </message>
    <message>
        <source>Create a scheme from the current layer setup.</source>
        <translation>Ein Schema aus den aktuellen Layereinstellungen anlegen.</translation>
    </message>
    <message>
        <source>Current &amp;Scheme:</source>
        <translation>Aktuelles S&amp;chema:</translation>
    </message>
    <message>
        <source>Custom Colour...</source>
        <translation>Eigene Farbe...</translation>
    </message>
    <message>
        <source>Custom Line Style...</source>
        <translation>Eigener Linientyp...</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dash-dot line</source>
        <translation>Strichpunktlinie</translation>
    </message>
    <message>
        <source>Dash-dot-dot line</source>
        <translation>Strich-Punkt-Punkt-Linie</translation>
    </message>
    <message>
        <source>Dashed line</source>
        <translation>Gestrichelte Linie</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete layer scheme &apos;^1&apos;?</source>
        <translation>Layerschema „^1“ löschen?</translation>
    </message>
    <message>
        <source>Delete the selected layer.</source>
        <translation>Den ausgewählten Layer löschen.</translation>
    </message>
    <message>
        <source>Delete this scheme.</source>
        <translation>Dieses Schema löschen.</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>Darstellungsart</translation>
    </message>
    <message>
        <source>Do not draw the layer for now.</source>
        <translation>Den Layer vorerst nicht zeichnen.</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the &apos;^2&apos; ^1?</source>
        <translation>Sollen die Änderungen auf ^1 „^2“ angewendet werden?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the ^1 selected layers?</source>
        <translation>Sollen die Änderungen auf die ^1 ausgewählten Layer angewendet werden?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the selected layer?</source>
        <translation>Sollen die Änderungen auf den ausgewählten Layer angewendet werden?</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>Gepunktete Linie</translation>
    </message>
    <message>
        <source>Double-click to enter the width.</source>
        <translation>Zum Eingeben der Breite doppelklicken.</translation>
    </message>
    <message>
        <source>Double-click, or press F2, to edit the code.</source>
        <translation>Zum Bearbeiten des Codes doppelklicken oder F2 drücken.</translation>
    </message>
    <message>
        <source>Draw Priority</source>
        <translation>Zeichenpriorität</translation>
    </message>
    <message>
        <source>Draw symbols in the colours of the layer.</source>
        <translation>Symbole in den Farben des Layers zeichnen.</translation>
    </message>
    <message>
        <source>Draw the layer faintly, behind the others.</source>
        <translation>Den Layer blass hinter den anderen zeichnen.</translation>
    </message>
    <message>
        <source>Draw the layer on the map.</source>
        <translation>Den Layer auf der Karte zeichnen.</translation>
    </message>
    <message>
        <source>Draw the layer with its own style.</source>
        <translation>Den Layer in seinem eigenen Stil zeichnen.</translation>
    </message>
    <message>
        <source>Drop the changes and show the stored values again.</source>
        <translation>Die Änderungen verwerfen und wieder die gespeicherten Werte zeigen.</translation>
    </message>
    <message>
        <source>Edit code</source>
        <translation>Code bearbeiten</translation>
    </message>
    <message>
        <source>Edit layer settings on the Groups and Layers tabs.</source>
        <translation>Layereinstellungen werden auf den Registerkarten „Gruppen“ und „Layer“ bearbeitet.</translation>
    </message>
    <message>
        <source>Edit Name</source>
        <translation>Namen bearbeiten</translation>
    </message>
    <message>
        <source>En&amp;quirable</source>
        <translation>Ab&amp;fragbar</translation>
    </message>
    <message>
        <source>Enter Line Width</source>
        <translation>Linienbreite eingeben</translation>
    </message>
    <message>
        <source>ERROR: Group not Found</source>
        <translation>FEHLER: Gruppe nicht gefunden</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Extended Colours</source>
        <translation>Erweiterte Farben</translation>
    </message>
    <message>
        <source>&amp;Fill colour:</source>
        <translation>F&amp;üllfarbe:</translation>
    </message>
    <message>
        <source>F&amp;ill style:</source>
        <translation>Füllty&amp;p:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find groups and layers</source>
        <translation>Gruppen und Layer suchen</translation>
    </message>
    <message>
        <source>Find layers</source>
        <translation>Layer suchen</translation>
    </message>
    <message>
        <source>Find layers by name or code. Ctrl+F goes here, Escape goes back.</source>
        <translation>Layer nach Name oder Code suchen. Strg+F führt hierher, Esc zurück.</translation>
    </message>
    <message>
        <source>Find layers by name, code or group. Ctrl+F goes here, Escape goes back.</source>
        <translation>Layer nach Name, Code oder Gruppe suchen. Strg+F führt hierher, Esc zurück.</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Go back to the last saved values of this scheme.</source>
        <translation>Zu den zuletzt gespeicherten Werten dieses Schemas zurückkehren.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>group</source>
        <translation>die Gruppe</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>&amp;Hidden</source>
        <translation>Ausgeblen&amp;det</translation>
    </message>
    <message>
        <source>Groups: ^1</source>
        <translation>Gruppen: ^1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Hi&amp;table</source>
        <translation>Anklic&amp;kbar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>How the renderer draws the layer.</source>
        <translation>Wie der Layer dargestellt wird.</translation>
    </message>
    <message>
        <source>Invalid Name</source>
        <translation>Ungültiger Name</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>it runs with Qt ^1, this program with Qt ^2</source>
        <translation>sie läuft mit Qt ^1, dieses Programm mit Qt ^2</translation>
    </message>
    <message>
        <source>it uses version ^1 of the interface, this program uses version ^2</source>
        <translation>sie verwendet Version ^1 der Schnittstelle, dieses Programm Version ^2</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;^1&quot;, this program with &quot;^2&quot;</source>
        <translation>sie wurde mit der Standardbibliothek „^1“ erstellt, dieses Programm mit „^2“</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>den Layer</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>Layersteuerung</translation>
    </message>
    <message>
        <source>Layer groups</source>
        <translation>Layergruppen</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Layers are deleted in the list of layers.</source>
        <translation>Layer werden in der Liste der Layer gelöscht.</translation>
    </message>
    <message>
        <source>Line and Fill</source>
        <translation>Linie und Füllung</translation>
    </message>
    <message>
        <source>Li&amp;ne colour:</source>
        <translation>Linienfarb&amp;e:</translation>
    </message>
    <message>
        <source>Line style ^1</source>
        <translation>Linientyp ^1</translation>
    </message>
    <message>
        <source>Line &amp;style:</source>
        <translation>Linient&amp;yp:</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Loc&amp;ked</source>
        <translation>Ge&amp;sperrt</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Kastanienbraun</translation>
    </message>
    <message>
        <source>Ma&amp;ximum:</source>
        <translation>Ma&amp;ximum:</translation>
    </message>
    <message>
        <source>&amp;Minimum:</source>
        <translation>&amp;Minimum:</translation>
    </message>
    <message>
        <source>Maximum scale: ^1</source>
        <translation>Größter Maßstab: ^1</translation>
    </message>
    <message>
        <source>Minimum scale: ^1</source>
        <translation>Kleinster Maßstab: ^1</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Marineblau</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>Neues Schema</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Neu...</translation>
    </message>
    <message>
        <source>Ne&amp;w...</source>
        <translation>Ne&amp;u...</translation>
    </message>
    <message>
        <source>No layer is shown.</source>
        <translation>Kein Layer eingeblendet.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Norma&amp;l</source>
        <translation>Norm&amp;al</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Objects of the layer can be clicked on the map.</source>
        <translation>Objekte des Layers können auf der Karte angeklickt werden.</translation>
    </message>
    <message>
        <source>Objects of the layer can be selected. Needs a hitable layer.</source>
        <translation>Objekte des Layers können ausgewählt werden. Setzt einen anklickbaren Layer voraus.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>One layer or group at a time can be renamed, but no system layer.</source>
        <translation>Es kann immer nur ein Layer oder eine Gruppe umbenannt werden, aber kein Systemlayer.</translation>
    </message>
    <message>
        <source>Only 1 of ^1 layers is shown.</source>
        <translation>Nur 1 von ^1 Layern eingeblendet.</translation>
    </message>
    <message>
        <source>Only ^1 of ^2 layers are shown.</source>
        <translation>Nur ^1 von ^2 Layern eingeblendet.</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>Nur Umriss</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Pattern ^1</source>
        <translation>Muster ^1</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>Bitte geben Sie einen Namen ein, der nicht leer ist, oder brechen Sie ab.</translation>
    </message>
    <message>
        <source>Points that are set near objects of the layer snap to them.</source>
        <translation>Punkte, die nahe bei Objekten des Layers gesetzt werden, werden auf diesen gefangen.</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>Prio&amp;rität:</translation>
    </message>
    <message>
        <source>Possible: ^1 to ^2</source>
        <translation>Möglich: ^1 bis ^2</translation>
    </message>
    <message>
        <source>Protect the layer against changes.</source>
        <translation>Den Layer vor Änderungen schützen.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Rename, copy, delete, compare, export and import the schemes of this map.</source>
        <translation>Die Schemas dieser Karte umbenennen, kopieren, löschen, vergleichen, exportieren und importieren.</translation>
    </message>
    <message>
        <source>Revert to the last saved values in layer scheme &apos;^1&apos;?</source>
        <translation>Die zuletzt gespeicherten Werte des Layerschemas „^1“ wiederherstellen?</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>Save all schemes of this map to the startup database, from which new maps take their schemes.</source>
        <translation>Alle Schemas dieser Karte in der Startdatenbank speichern, aus der neue Karten ihre Schemas übernehmen.</translation>
    </message>
    <message>
        <source>Save current layer setup to scheme &apos;^1&apos;?</source>
        <translation>Die aktuellen Layereinstellungen im Schema „^1“ speichern?</translation>
    </message>
    <message>
        <source>Save the current layer setup to this scheme.</source>
        <translation>Die aktuellen Layereinstellungen in diesem Schema speichern.</translation>
    </message>
    <message>
        <source>Save to S&amp;tartup</source>
        <translation>Für S&amp;tart speichern</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Schemas</translation>
    </message>
    <message>
        <source>Select a layer first.</source>
        <translation>Wählen Sie zuerst einen Layer aus.</translation>
    </message>
    <message>
        <source>Select a layer or a group first.</source>
        <translation>Wählen Sie zuerst einen Layer oder eine Gruppe aus.</translation>
    </message>
    <message>
        <source>Select a layer or a group to see its settings.</source>
        <translation>Wählen Sie einen Layer oder eine Gruppe aus, um die Einstellungen zu sehen.</translation>
    </message>
    <message>
        <source>S&amp;electable</source>
        <translation>Ausw&amp;ählbar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select All in Group</source>
        <translation>Alle in der Gruppe auswählen</translation>
    </message>
    <message>
        <source>Set Draw Priority</source>
        <translation>Zeichenpriorität festlegen</translation>
    </message>
    <message>
        <source>Set Maximum Visible Scale</source>
        <translation>Größten sichtbaren Maßstab festlegen</translation>
    </message>
    <message>
        <source>Set Minimum Visible Scale</source>
        <translation>Kleinsten sichtbaren Maßstab festlegen</translation>
    </message>
    <message>
        <source>Set the largest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>Den größten Maßstabsindex festlegen, bei dem der Layer gezeichnet wird; „beliebig“ setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Set the order in which layers are drawn; 1 is the highest.</source>
        <translation>Die Reihenfolge festlegen, in der Layer gezeichnet werden; 1 ist die höchste Priorität.</translation>
    </message>
    <message>
        <source>Set the smallest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>Den kleinsten Maßstabsindex festlegen, bei dem der Layer gezeichnet wird; „beliebig“ setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>Alle wieder einblenden</translation>
    </message>
    <message>
        <source>Show Only These</source>
        <translation>Nur diese einblenden</translation>
    </message>
    <message>
        <source>Show Line and Fill</source>
        <translation>Linie und Füllung zeigen</translation>
    </message>
    <message>
        <source>Show or hide the settings beside the lists.</source>
        <translation>Die Einstellungen neben den Listen ein- oder ausblenden.</translation>
    </message>
    <message>
        <source>Hide settings</source>
        <translation>Einstellungen verbergen</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste Settings</source>
        <translation>Einstellungen einfügen</translation>
    </message>
    <message>
        <source>Paste Settings...</source>
        <translation>Einstellungen einfügen...</translation>
    </message>
    <message>
        <source>Paste these settings into ^1:</source>
        <translation>Diese Einstellungen in ^1 einfügen:</translation>
    </message>
    <message>
        <source>Paste these settings into &apos;^1&apos;:</source>
        <translation>Diese Einstellungen in „^1“ einfügen:</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Settings to paste</source>
        <translation>Einzufügende Einstellungen</translation>
    </message>
    <message>
        <source>Show settings</source>
        <translation>Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>Silber</translation>
    </message>
    <message>
        <source>Sna&amp;p required</source>
        <translation>Fan&amp;g erforderlich</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Vollfläche</translation>
    </message>
    <message>
        <source>Source: ^1</source>
        <translation>Quelle: ^1</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>Schritt nach unten</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>Schritt nach oben</translation>
    </message>
    <message>
        <source>Store the changes.</source>
        <translation>Die Änderungen speichern.</translation>
    </message>
    <message>
        <source>Style Editor with that ID already exists.</source>
        <translation>Ein Stileditor mit dieser ID ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>St&amp;yle:</source>
        <translation>S&amp;til:</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Switch to &apos;^1&apos;? Any unsaved changes to the current scheme will be lost. Continue?</source>
        <translation>Zu „^1“ wechseln? Nicht gespeicherte Änderungen am aktuellen Schema gehen verloren. Fortfahren?</translation>
    </message>
    <message>
        <source>Switch to another layer scheme.</source>
        <translation>Zu einem anderen Layerschema wechseln.</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>The ^1 &apos;^2&apos; no longer exists. The changes were not applied.</source>
        <translation>„^2“ (^1) gibt es nicht mehr. Die Änderungen wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>The changes were not applied.</source>
        <translation>Die Änderungen wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>The colour between the lines of patterns.</source>
        <translation>Die Farbe zwischen den Linien von Mustern.</translation>
    </message>
    <message>
        <source>The colour of filled areas and of the lines of patterns.</source>
        <translation>Die Farbe gefüllter Flächen und der Linien von Mustern.</translation>
    </message>
    <message>
        <source>The colour of lines and outlines.</source>
        <translation>Die Farbe von Linien und Umrissen.</translation>
    </message>
    <message>
        <source>The copied settings cannot be read.</source>
        <translation>Die kopierten Einstellungen können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder &quot;^1&quot; has no texts. They are looked for as &quot;nl/POBEX.LRT&quot; and &quot;POBEX.nl.ts&quot;, for example.</source>
        <translation>Der Ordner „^1“ enthält keine Texte. Gesucht werden sie zum Beispiel als „nl/POBEX.LRT“ und „POBEX.nl.ts“.</translation>
    </message>
    <message>
        <source>The group &apos;^1&apos; no longer has any layers. The changes were not applied.</source>
        <translation>Die Gruppe „^1“ enthält keine Layer mehr. Die Änderungen wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>Das letzte Layerschema kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The layer control has not been initialised.</source>
        <translation>Die Layersteuerung wurde nicht initialisiert.</translation>
    </message>
    <message>
        <source>The pattern of filled areas. If both fill colours are transparent, patterns have the line colour.</source>
        <translation>Das Muster gefüllter Flächen. Sind beide Füllfarben transparent, haben Muster die Linienfarbe.</translation>
    </message>
    <message>
        <source>The pattern or the width of lines and outlines.</source>
        <translation>Das Muster oder die Breite von Linien und Umrissen.</translation>
    </message>
    <message>
        <source>The program must make a QApplication before it makes a layer control.</source>
        <translation>Das Programm muss eine QApplication anlegen, bevor es eine Layersteuerung anlegt.</translation>
    </message>
    <message>
        <source>The selected layers (^1) no longer exist. The changes were not applied.</source>
        <translation>Die ausgewählten Layer (^1) gibt es nicht mehr. Die Änderungen wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be read: ^2</source>
        <translation>Die Texte „^1“ können nicht gelesen werden: ^2</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be used: they are larger than 8 MB, or no Qt Linguist document with finished translations.</source>
        <translation>Die Texte „^1“ können nicht verwendet werden: Sie sind größer als 8 MB oder kein Qt-Linguist-Dokument mit fertigen Übersetzungen.</translation>
    </message>
    <message>
        <source>The thinnest line will be stored.</source>
        <translation>Gespeichert wird die dünnste Linie.</translation>
    </message>
    <message>
        <source>The value of a check box is 0, 1 or 2.</source>
        <translation>Der Wert eines Kontrollkästchens ist 0, 1 oder 2.</translation>
    </message>
    <message>
        <source>Theme Control: ^1</source>
        <translation>Themensteuerung: ^1</translation>
    </message>
    <message>
        <source>These layers have no setting in common.</source>
        <translation>Diese Layer haben keine gemeinsame Einstellung.</translation>
    </message>
    <message>
        <source>These layers no longer exist. Nothing was pasted.</source>
        <translation>Diese Layer gibt es nicht mehr. Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>Dünnste Linie</translation>
    </message>
    <message>
        <source>This map cannot keep which layers were hidden.</source>
        <translation>Diese Karte kann nicht aufbewahren, welche Layer ausgeblendet wurden.</translation>
    </message>
    <message>
        <source>This map has no display modes.</source>
        <translation>Diese Karte hat keine Darstellungsarten.</translation>
    </message>
    <message>
        <source>This map has no style of that name.</source>
        <translation>Diese Karte hat keinen Stil mit diesem Namen.</translation>
    </message>
    <message>
        <source>this program does not tell which version it uses</source>
        <translation>dieses Programm teilt nicht mit, welche Version es verwendet</translation>
    </message>
    <message>
        <source>Tick all settings.</source>
        <translation>Alle Einstellungen ankreuzen.</translation>
    </message>
    <message>
        <source>Tick no setting.</source>
        <translation>Keine Einstellung ankreuzen.</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Unexpected program flow in frmLayerStyles</source>
        <translation>Unerwarteter Programmablauf in frmLayerStyles</translation>
    </message>
    <message>
        <source>Unknown Fill Style!</source>
        <translation>Unbekannter Fülltyp!</translation>
    </message>
    <message>
        <source>&amp;Use for symbols</source>
        <translation>Für Symbole &amp;verwenden</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Verschiedene</translation>
    </message>
    <message>
        <source>various</source>
        <translation>verschiedene</translation>
    </message>
    <message>
        <source>&amp;Visible</source>
        <translation>S&amp;ichtbar</translation>
    </message>
    <message>
        <source>Visible Scale Range</source>
        <translation>Sichtbarer Maßstabsbereich</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;</source>
        <translation>Ein „Systemlayer“ darf nicht gelöscht werden</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;. Selected layers that stay: ^1.</source>
        <translation>Ein „Systemlayer“ darf nicht gelöscht werden. Ausgewählte Layer, die bleiben: ^1.</translation>
    </message>
</context>
</TS>
