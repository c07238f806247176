<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Orvane</name>
    <message>
        <source>&quot;%1&quot; cannot be changed: %2.</source>
        <translation>„%1“ kann nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no picture.</source>
        <translation>„%1“ enthält kein Bild.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no readable data.</source>
        <translation>„%1“ enthält keine lesbaren Daten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains nothing to draw.</source>
        <translation>„%1“ enthält nichts, was gezeichnet werden kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say where it lies: there is no world file &quot;%2&quot; beside it, and it contains no coordinates of its own, as a GeoTIFF does.</source>
        <translation>„%1“ gibt nicht an, wo das Bild liegt: Daneben gibt es keine Weltdatei „%2“, und es enthält auch keine eigenen Koordinaten wie ein GeoTIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no column named &quot;%2&quot;. Its columns are: %3</source>
        <translation>„%1“ hat keine Spalte namens „%2“. Die Spalten sind: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layer named &quot;%2&quot;.</source>
        <translation>„%1“ hat keinen Layer namens „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in &quot;%2&quot; cannot be read.</source>
        <translation>„%1“ in „%2“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. It can only be read by a map on that server.</source>
        <translation>„%1“ ist eine Tabelle auf einem Server. Nur eine Karte auf diesem Server kann sie lesen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. This works only with data in files.</source>
        <translation>„%1“ ist eine Tabelle auf einem Server. Dies ist nur mit Daten in Dateien möglich.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table without columns for coordinates.</source>
        <translation>„%1“ ist eine Tabelle ohne Spalten für Koordinaten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing from &quot;%2&quot;.</source>
        <translation>„%1“ fehlt in „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Type one such as %2.</source>
        <translation>„%1“ ist kein Maßstab. Geben Sie einen wie %2 ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid page size.</source>
        <translation>„%1“ ist keine gültige Seitengröße.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file</source>
        <translation>„%1“ ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not opened because &quot;%2&quot; is not an ordinary file.</source>
        <translation>„%1“ wurde nicht geöffnet, weil „%2“ keine gewöhnliche Datei ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; is not a valid value.</source>
        <translation>„%1“, Zeile „%2“: %3 „%4“ ist kein gültiger Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; was replaced by %5.</source>
        <translation>„%1“, Zeile „%2“: %3 „%4“ wurde durch %5 ersetzt.</translation>
    </message>
    <message>
        <source>&quot;--columns&quot; needs two names: &quot;X,Y&quot;.</source>
        <translation>„--columns“ braucht zwei Namen: „X,Y“.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not the place of a map on a server, such as postgresql://server/database?schema=Map.</source>
        <translation>„^1“ ist kein Ort einer Karte auf einem Server, wie etwa postgresql://server/datenbank?schema=Karte.</translation>
    </message>
    <message>
        <source>%1
Unit: %2
Area of use: %3</source>
        <translation>%1
Einheit: %2
Gültigkeitsbereich: %3</translation>
    </message>
    <message>
        <source>%1 (areas)</source>
        <translation>%1 (Flächen)</translation>
    </message>
    <message>
        <source>%1 (in the map's system)</source>
        <translation>%1 (im System der Karte)</translation>
    </message>
    <message>
        <source>%1 (left out)</source>
        <translation>%1 (ausgelassen)</translation>
    </message>
    <message>
        <source>%1 (lines)</source>
        <translation>%1 (Linien)</translation>
    </message>
    <message>
        <source>%1 (longitude, latitude)</source>
        <translation>%1 (Länge, Breite)</translation>
    </message>
    <message>
        <source>%1 (points)</source>
        <translation>%1 (Punkte)</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 to %2 east, %3 to %4 north</source>
        <translation>%1 bis %2 Ost, %3 bis %4 Nord</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, bands: %3</source>
        <translation>%1 x %2 Pixel, Kanäle: %3</translation>
    </message>
    <message>
        <source>%1. It shows neither labels nor classes: choose another in the layer control.</source>
        <translation>%1. Damit werden weder Beschriftungen noch Klassen gezeigt: Wählen Sie in der Layersteuerung eine andere.</translation>
    </message>
    <message>
        <source>%1: features %2, extent %3</source>
        <translation>%1: Objekte %2, Ausdehnung %3</translation>
    </message>
    <message>
        <source>%1: may edit</source>
        <translation>%1: darf bearbeiten</translation>
    </message>
    <message>
        <source>%1: may read</source>
        <translation>%1: darf lesen</translation>
    </message>
    <message>
        <source>%1: raster of %2 x %3 pixels, extent %4</source>
        <translation>%1: Raster mit %2 x %3 Pixeln, Ausdehnung %4</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Apply When the Map Is Opened</source>
        <translation>Beim Öffnen der Karte &amp;anwenden</translation>
    </message>
    <message>
        <source>&amp;As the Source Says</source>
        <translation>&amp;Wie die Quelle angibt</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Än&amp;dern...</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>&amp;Coordinate System of the Map...</source>
        <translation>&amp;Koordinatensystem der Karte...</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Give</source>
        <translation>&amp;Erteilen</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Holds...</source>
        <translation>In&amp;halt...</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Name of the map:</source>
        <translation>&amp;Name der Karte:</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Neu...</translation>
    </message>
    <message>
        <source>&quot;--to MAP&quot; is missing.</source>
        <translation>„--to MAP“ fehlt.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be created because a file of that name exists already.</source>
        <translation>„^1“ kann nicht angelegt werden, weil eine Datei dieses Namens bereits vorhanden ist.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be stored: ^2</source>
        <translation>„^1“ kann nicht gespeichert werden: ^2</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not a map file.</source>
        <translation>„^1“ ist keine Kartendatei.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is open in another window or program and cannot be replaced. Close it there, or choose another name.</source>
        <translation>„^1“ ist in einem anderen Fenster oder Programm geöffnet und kann nicht ersetzt werden. Schließen Sie es dort oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&quot;orvane %1--help&quot; lists the options.</source>
        <translation>„orvane %1--help“ zeigt die Optionen.</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (in %2 Layern)</translation>
    </message>
    <message>
        <source>%1 - Orvane</source>
        <translation>%1 - Orvane</translation>
    </message>
    <message>
        <source>%1 is here but hidden at this scale.</source>
        <translation>%1 ist hier, aber in diesem Maßstab ausgeblendet.</translation>
    </message>
    <message>
        <source>%1 is here but hidden by its quick mode.</source>
        <translation>%1 ist hier, aber durch seinen Schnellmodus ausgeblendet.</translation>
    </message>
    <message>
        <source>%1 is here but locked.</source>
        <translation>%1 ist hier, aber gesperrt.</translation>
    </message>
    <message>
        <source>%1 is here but not enquirable.</source>
        <translation>%1 ist hier, aber nicht abfragbar.</translation>
    </message>
    <message>
        <source>%1 is here but not hitable.</source>
        <translation>%1 ist hier, aber nicht anklickbar.</translation>
    </message>
    <message>
        <source>%1 is here but not selectable.</source>
        <translation>%1 ist hier, aber nicht auswählbar.</translation>
    </message>
    <message>
        <source>%1 is here but not visible.</source>
        <translation>%1 ist hier, aber nicht sichtbar.</translation>
    </message>
    <message>
        <source>%1 is here but snapping to it is off.</source>
        <translation>%1 ist hier, aber sein Fang ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>%1 layers</source>
        <translation>%1 Layer</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1 Steps</source>
        <translation>%1 Schritte</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, not for symbols</source>
        <translation>%1, nicht für Symbole</translation>
    </message>
    <message>
        <source>%1: your value is %2, stored is %3</source>
        <translation>%1: Ihr Wert ist %2, gespeichert ist %3</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° O</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° N</translation>
    </message>
    <message>
        <source>%1° S</source>
        <translation>%1° S</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° W</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>Ü&amp;ber Orvane</translation>
    </message>
    <message>
        <source>&amp;Attribute:</source>
        <translation>&amp;Attribut:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Delete Theme</source>
        <translation>Thema &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Division:</source>
        <translation>&amp;Einteilung:</translation>
    </message>
    <message>
        <source>&amp;Dock Layer Control</source>
        <translation>Layersteuerung an&amp;docken</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Export Map...</source>
        <translation>Karte &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Export Scheme...</source>
        <translation>Schema &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Find Missing Data...</source>
        <translation>Fehlende Daten s&amp;uchen...</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>V&amp;on:</translation>
    </message>
    <message>
        <source>&amp;Geometry:</source>
        <translation>&amp;Geometrie:</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Highlight Under Pointer</source>
        <translation>Unter dem Zeiger &amp;hervorheben</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>&amp;Abfragen</translation>
    </message>
    <message>
        <source>&amp;Import Scheme...</source>
        <translation>Schema &amp;importieren...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Keep Layers</source>
        <translation>Layer be&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Keep the Stored Ones</source>
        <translation>Gespeicherte &amp;behalten</translation>
    </message>
    <message>
        <source>&amp;Layer Control</source>
        <translation>&amp;Layersteuerung</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>La&amp;yer:</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Layer</translation>
    </message>
    <message>
        <source>&amp;Legend of what is shown</source>
        <translation>&amp;Legende des Gezeigten</translation>
    </message>
    <message>
        <source>&amp;Make a layer scheme of each of these map themes:</source>
        <translation>&amp;Aus jedem dieser Kartenthemen ein Layerschema machen:</translation>
    </message>
    <message>
        <source>&amp;Move Feature</source>
        <translation>&amp;Objekt verschieben</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;New Map...</source>
        <translation>&amp;Neue Karte...</translation>
    </message>
    <message>
        <source>&amp;New Theme from Visible Layers...</source>
        <translation>&amp;Neues Thema aus sichtbaren Layern...</translation>
    </message>
    <message>
        <source>&amp;Next Row</source>
        <translation>&amp;Nächste Zeile</translation>
    </message>
    <message>
        <source>&amp;Next View</source>
        <translation>&amp;Nächste Ansicht</translation>
    </message>
    <message>
        <source>&amp;Nowhere; leave this table out</source>
        <translation>&amp;Nirgends; diese Tabelle auslassen</translation>
    </message>
    <message>
        <source>&amp;Number of classes:</source>
        <translation>A&amp;nzahl der Klassen:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Open Map...</source>
        <translation>Karte ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Pan and Zoom</source>
        <translation>&amp;Verschieben und Zoomen</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Preview...</source>
        <translation>&amp;Vorschau...</translation>
    </message>
    <message>
        <source>&amp;Previous Row</source>
        <translation>&amp;Vorige Zeile</translation>
    </message>
    <message>
        <source>&amp;Previous View</source>
        <translation>V&amp;orherige Ansicht</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Druc&amp;ken...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Remove Map...</source>
        <translation>Karte en&amp;tfernen...</translation>
    </message>
    <message>
        <source>&amp;Rename Theme</source>
        <translation>Thema &amp;umbenennen</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>&amp;Reverse the colours</source>
        <translation>Farben um&amp;kehren</translation>
    </message>
    <message>
        <source>&amp;Revert to Saved Scheme</source>
        <translation>Zum gespeicherten Schema &amp;zurück</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Save Map As...</source>
        <translation>Karte &amp;speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Save Scheme</source>
        <translation>Schema &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Save Scheme &quot;%1&quot;</source>
        <translation>Schema „%1“ &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Schemes</source>
        <translation>&amp;Schemas</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Au&amp;swählen</translation>
    </message>
    <message>
        <source>&amp;Service, or address of the database:</source>
        <translation>&amp;Dienst oder Adresse der Datenbank:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Store My Values</source>
        <translation>Meine Werte &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;System:</source>
        <translation>&amp;System:</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>En&amp;tziehen</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Themen</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Use It Now</source>
        <translation>Jetzt &amp;anwenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;X, east or longitude:</source>
        <translation>&amp;X, Osten oder Länge:</translation>
    </message>
    <message>
        <source>&amp;Y, north or latitude:</source>
        <translation>&amp;Y, Norden oder Breite:</translation>
    </message>
    <message>
        <source>&amp;Zoom by Rectangle</source>
        <translation>Auf &amp;Rechteck zoomen</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selection</source>
        <translation>Auf Auswahl &amp;zoomen</translation>
    </message>
    <message>
        <source>&amp;in</source>
        <translation>&amp;in</translation>
    </message>
    <message>
        <source>--%1 needs a number from %2 to %3.</source>
        <translation>--%1 braucht eine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>--%1: &quot;%2&quot; is not a known coordinate system.</source>
        <translation>--%1: „%2“ ist kein bekanntes Koordinatensystem.</translation>
    </message>
    <message>
        <source>A code such as EPSG:25832, WKT or a PROJ string</source>
        <translation>Ein Code wie EPSG:25832, WKT oder ein PROJ-Text</translation>
    </message>
    <message>
        <source>A raster has no attributes, and so no labels and classes.</source>
        <translation>Ein Raster hat keine Attribute und daher keine Beschriftungen und Klassen.</translation>
    </message>
    <message>
        <source>A raster has no attributes.</source>
        <translation>Ein Raster hat keine Attribute.</translation>
    </message>
    <message>
        <source>A service is an entry of PostgreSQL&apos;s file pg_service.conf, which your administrator may have set up. Leave the password out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>Ein Dienst ist ein Eintrag in der Datei pg_service.conf von PostgreSQL, die Ihre Systemverwaltung eingerichtet haben kann. Lassen Sie das Kennwort weg: Es gehört in die Kennwortdatei von PostgreSQL, oder Sie werden danach gefragt.</translation>
    </message>
    <message>
        <source>A value cannot be stored in &quot;^1&quot;: ^2</source>
        <translation>Ein Wert lässt sich in „^1“ nicht speichern: ^2</translation>
    </message>
    <message>
        <source>Add PostGIS tables of the map&apos;s server to the map</source>
        <translation>PostGIS-Tabellen vom Server der Karte zur Karte hinzufügen</translation>
    </message>
    <message>
        <source>Add Server</source>
        <translation>Server hinzufügen</translation>
    </message>
    <message>
        <source>Add Ta&amp;bles from Server...</source>
        <translation>&amp;Tabellen vom Server hinzufügen...</translation>
    </message>
    <message>
        <source>Add Tables from Server</source>
        <translation>Tabellen vom Server hinzufügen</translation>
    </message>
    <message>
        <source>Add aerial photographs, scanned maps or elevation grids to the map</source>
        <translation>Luftbilder, gescannte Karten oder Höhenraster zur Karte hinzufügen</translation>
    </message>
    <message>
        <source>Add data to a map file: a group for each file, a layer for each of its layers.
Exit code: 0 all was added, 1 something was not or has no known place, 2 the command was not understood.</source>
        <translation>Daten zu einer Kartendatei hinzufügen: eine Gruppe je Datei, ein Layer je Layer darin.
Rückgabewert: 0 alles wurde hinzugefügt, 1 etwas nicht oder ohne bekannte Lage, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>Add the server of your team. Your administrator knows its name.</source>
        <translation>Fügen Sie den Server Ihres Teams hinzu. Ihre Systemverwaltung kennt seinen Namen.</translation>
    </message>
    <message>
        <source>All attributes</source>
        <translation>Alle Attribute</translation>
    </message>
    <message>
        <source>Also opened by: %1</source>
        <translation>Auch geöffnet von: %1</translation>
    </message>
    <message>
        <source>Also opened by: %1 and %2 more</source>
        <translation>Auch geöffnet von: %1 und %2 weitere</translation>
    </message>
    <message>
        <source>Apply No Scheme at Opening</source>
        <translation>Kein Schema beim Öffnen anwenden</translation>
    </message>
    <message>
        <source>Apply Scheme &quot;%1&quot; at Opening</source>
        <translation>Schema „%1“ beim Öffnen anwenden</translation>
    </message>
    <message>
        <source>Area of use</source>
        <translation>Gültigkeitsbereich</translation>
    </message>
    <message>
        <source>As this &amp;layer:</source>
        <translation>Wie dieser &amp;Layer:</translation>
    </message>
    <message>
        <source>Asking the server...</source>
        <translation>Der Server wird gefragt...</translation>
    </message>
    <message>
        <source>At opening</source>
        <translation>Beim Öffnen</translation>
    </message>
    <message>
        <source>Attribute &amp;Table...</source>
        <translation>Attribut&amp;tabelle...</translation>
    </message>
    <message>
        <source>Attribute Table</source>
        <translation>Attributtabelle</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Attribute von %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Band %1</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Blue to red, pale in the middle</source>
        <translation>Blau nach Rot, in der Mitte blass</translation>
    </message>
    <message>
        <source>Blues</source>
        <translation>Blautöne</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Centre Here</source>
        <translation>Hier zentrieren</translation>
    </message>
    <message>
        <source>Change Coordinate System of Data</source>
        <translation>Ändern des Koordinatensystems von Daten</translation>
    </message>
    <message>
        <source>Change Coordinate System of the Map</source>
        <translation>Ändern des Koordinatensystems der Karte</translation>
    </message>
    <message>
        <source>Change What Scheme &quot;%1&quot; Holds</source>
        <translation>Ändern des Inhalts von Schema „%1“</translation>
    </message>
    <message>
        <source>Choose a layer in the layer control first.</source>
        <translation>Wählen Sie zuerst einen Layer in der Layersteuerung.</translation>
    </message>
    <message>
        <source>Choose the colour under all layers</source>
        <translation>Die Farbe unter allen Layern wählen</translation>
    </message>
    <message>
        <source>Choose the columns with the coordinates of the tables in the map</source>
        <translation>Die Spalten mit den Koordinaten der Tabellen in der Karte wählen</translation>
    </message>
    <message>
        <source>Choose the columns, please.</source>
        <translation>Bitte wählen Sie die Spalten.</translation>
    </message>
    <message>
        <source>Choose the coordinate system that the map is shown in</source>
        <translation>Das Koordinatensystem wählen, in dem die Karte gezeigt wird</translation>
    </message>
    <message>
        <source>Choose where the files with the data of the map are on this computer</source>
        <translation>Festlegen, wo auf diesem Computer die Dateien mit den Daten der Karte liegen</translation>
    </message>
    <message>
        <source>Choose who may read and edit a map on a server; without options, list them. A role is a user of the server or a group of users; &quot;public&quot; is everybody. Only the owner of the map can change this.
Exit code: 0 done, 1 not done, 2 the command was not understood.</source>
        <translation>Festlegen, wer eine Karte auf einem Server lesen und bearbeiten darf; ohne Optionen wird dies aufgelistet. Eine Rolle ist ein Benutzer des Servers oder eine Gruppe von Benutzern; „public“ sind alle. Nur wem die Karte gehört, kann dies ändern.
Rückgabewert: 0 erledigt, 1 nicht erledigt, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>Choose who may read and edit the map on its server</source>
        <translation>Festlegen, wer die Karte auf ihrem Server lesen und bearbeiten darf</translation>
    </message>
    <message>
        <source>Click a feature to see its attributes, or a raster to see its values.</source>
        <translation>Klicken zeigt die Attribute eines Objekts oder die Werte eines Rasters.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>Verbindung zum Server wird hergestellt</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Coordinate System of the Data</source>
        <translation>Koordinatensystem der Daten</translation>
    </message>
    <message>
        <source>Coordinate System of the Layer</source>
        <translation>Koordinatensystem des Layers</translation>
    </message>
    <message>
        <source>Coordinate System of the Map</source>
        <translation>Koordinatensystem der Karte</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1</source>
        <translation>Koordinatensystem der Karte: %1</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1
Unit: %2
Area of use: %3</source>
        <translation>Koordinatensystem der Karte: %1
Einheit: %2
Gültigkeitsbereich: %3</translation>
    </message>
    <message>
        <source>Coordinate system:</source>
        <translation>Koordinatensystem:</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Koordinatensysteme</translation>
    </message>
    <message>
        <source>Coordinates of &quot;%1&quot; are in these columns: %2</source>
        <translation>Die Koordinaten von „%1“ stehen in diesen Spalten: %2</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <translation>Koordinaten kopieren</translation>
    </message>
    <message>
        <source>Copying the rows</source>
        <translation>Die Zeilen werden kopiert</translation>
    </message>
    <message>
        <source>Delete Theme &quot;%1&quot;</source>
        <translation>Thema „%1“ löschen</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it. A click zooms in, with Ctrl out.</source>
        <translation>Ziehen Sie ein Rechteck auf, um darauf zu zoomen. Ein Klick vergrößert, mit Strg verkleinert er.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Extent:</source>
        <translation>Ausdehnung:</translation>
    </message>
    <message>
        <source>Features found: %1, rasters: %2</source>
        <translation>Gefundene Objekte: %1, Raster: %2</translation>
    </message>
    <message>
        <source>Features:</source>
        <translation>Objekte:</translation>
    </message>
    <message>
        <source>File or source:</source>
        <translation>Datei oder Quelle:</translation>
    </message>
    <message>
        <source>Fill colours of the layer</source>
        <translation>Füllfarben des Layers</translation>
    </message>
    <message>
        <source>First rows</source>
        <translation>Erste Zeilen</translation>
    </message>
    <message>
        <source>Folder of S&amp;hared Data...</source>
        <translation>Ordner der &amp;gemeinsamen Daten...</translation>
    </message>
    <message>
        <source>Folder of Shared Data</source>
        <translation>Ordner der gemeinsamen Daten</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>Ver&amp;gessen</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>From dark to light, for a map with a dark background</source>
        <translation>Von dunkel nach hell, für eine Karte mit dunklem Hintergrund</translation>
    </message>
    <message>
        <source>Geometry:</source>
        <translation>Geometrie:</translation>
    </message>
    <message>
        <source>Greens</source>
        <translation>Grüntöne</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grautöne</translation>
    </message>
    <message>
        <source>In &amp;one column with geometries as text (WKT)</source>
        <translation>In &amp;einer Spalte mit Geometrien als Text (WKT)</translation>
    </message>
    <message>
        <source>In &amp;two columns with numbers</source>
        <translation>In &amp;zwei Spalten mit Zahlen</translation>
    </message>
    <message>
        <source>It is used until Orvane ends, and stored nowhere.</source>
        <translation>Es wird verwendet, bis Orvane beendet wird, und nirgends gespeichert.</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source cannot be read.</source>
        <translation>Es wurde angenommen oder gewählt; die Quelle kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source names none.</source>
        <translation>Es wurde angenommen oder gewählt; die Quelle gibt keines an.</translation>
    </message>
    <message>
        <source>It was chosen; the source says %1.</source>
        <translation>Es wurde gewählt; die Quelle gibt %1 an.</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Letzte Änderung</translation>
    </message>
    <message>
        <source>Layer &amp;Properties...</source>
        <translation>Layer-&amp;Eigenschaften...</translation>
    </message>
    <message>
        <source>Layer Properties</source>
        <translation>Layer-Eigenschaften</translation>
    </message>
    <message>
        <source>Layer Properties...</source>
        <translation>Layer-Eigenschaften...</translation>
    </message>
    <message>
        <source>Layer Rendering...</source>
        <translation>Layerdarstellung...</translation>
    </message>
    <message>
        <source>Layer in it:</source>
        <translation>Layer darin:</translation>
    </message>
    <message>
        <source>Layers &gt; Layer Properties... changes this.</source>
        <translation>Unter Layer &gt; Layer-Eigenschaften... lässt sich das ändern.</translation>
    </message>
    <message>
        <source>Layers whose data were found: %1 of %2</source>
        <translation>Layer, deren Daten gefunden wurden: %1 von %2</translation>
    </message>
    <message>
        <source>Let ROLE read and change the map.</source>
        <translation>ROLE darf die Karte lesen und ändern.</translation>
    </message>
    <message>
        <source>Let ROLE read the map.</source>
        <translation>ROLE darf die Karte lesen.</translation>
    </message>
    <message>
        <source>List the layers of a map: the number of features, and the extent in the map&apos;s coordinate system as west, south, east and north.
Exit code: 0 all was read, 1 something was not, 2 the command was not understood.</source>
        <translation>Die Layer einer Karte auflisten: die Zahl der Objekte und die Ausdehnung im Koordinatensystem der Karte als Westen, Süden, Osten und Norden.
Rückgabewert: 0 alles wurde gelesen, 1 etwas nicht, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>List the options.</source>
        <translation>Die Optionen auflisten.</translation>
    </message>
    <message>
        <source>Lists of the layers that you need for one task, without settings</source>
        <translation>Listen der Layer, die Sie für eine Aufgabe brauchen, ohne Einstellungen</translation>
    </message>
    <message>
        <source>Looking for tables</source>
        <translation>Tabellen werden gesucht</translation>
    </message>
    <message>
        <source>Map &amp;Background...</source>
        <translation>&amp;Hintergrundfarbe der Karte...</translation>
    </message>
    <message>
        <source>Map Background</source>
        <translation>Hintergrundfarbe der Karte</translation>
    </message>
    <message>
        <source>Map data (%1);;All files (*)</source>
        <translation>Kartendaten (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Maps on the server</source>
        <translation>Karten auf dem Server</translation>
    </message>
    <message>
        <source>Named sets of the settings of all layers</source>
        <translation>Benannte Sätze der Einstellungen aller Layer</translation>
    </message>
    <message>
        <source>New Theme &quot;%1&quot;</source>
        <translation>Neues Thema „%1“</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>Kein Koordinatensystem</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. The coordinates are taken as those of the map.</source>
        <translation>%1: Kein Koordinatensystem angegeben, und keines gefunden, das passt. Die Koordinaten werden als die der Karte genommen.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. Which one is it? With Cancel, the data are added as if they had the coordinates of the map.</source>
        <translation>%1: Kein Koordinatensystem angegeben, und keines gefunden, das passt. Welches ist es? Mit Abbrechen werden die Daten hinzugefügt, als hätten sie die Koordinaten der Karte.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. It is taken as the chosen one, %2.</source>
        <translation>%1: Kein Koordinatensystem angegeben. Das gewählte wird verwendet: %2.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit degrees, so it is taken as %2.</source>
        <translation>%1: Kein Koordinatensystem angegeben. Die Koordinaten passen zu Grad, daher wird %2 angenommen.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit the map, so it is taken as %2.</source>
        <translation>%1: Kein Koordinatensystem angegeben. Die Koordinaten passen zur Karte, daher wird %2 angenommen.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Not everything in these layers has a place in %1: %2. It is shown again in a system that has one.</source>
        <translation>Nicht alles in diesen Layern hat einen Platz in %1: %2. In einem System, das einen hat, ist es wieder zu sehen.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Only maps on a server can be shared.</source>
        <translation>Nur Karten auf einem Server können geteilt werden.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open Map from Ser&amp;ver...</source>
        <translation>Karte &amp;vom Server öffnen...</translation>
    </message>
    <message>
        <source>Open Map from Server</source>
        <translation>Karte vom Server öffnen</translation>
    </message>
    <message>
        <source>Open Ras&amp;ter...</source>
        <translation>&amp;Raster öffnen...</translation>
    </message>
    <message>
        <source>Open Raster</source>
        <translation>Raster öffnen</translation>
    </message>
    <message>
        <source>Open a map that a team shares on a PostgreSQL server</source>
        <translation>Eine Karte öffnen, die ein Team auf einem PostgreSQL-Server teilt</translation>
    </message>
    <message>
        <source>Open by</source>
        <translation>Geöffnet von</translation>
    </message>
    <message>
        <source>Oranges</source>
        <translation>Orangetöne</translation>
    </message>
    <message>
        <source>Orvane Guide</source>
        <translation>Orvane-Handbuch</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Besitzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Password of &quot;%1&quot; on the server &quot;%2&quot;:</source>
        <translation>Kennwort von „%1“ auf dem Server „%2“:</translation>
    </message>
    <message>
        <source>Pixel size:</source>
        <translation>Pixelgröße:</translation>
    </message>
    <message>
        <source>Purples</source>
        <translation>Violetttöne</translation>
    </message>
    <message>
        <source>R&amp;ights...</source>
        <translation>Re&amp;chte...</translation>
    </message>
    <message>
        <source>R&amp;ole:</source>
        <translation>R&amp;olle:</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Raster:</source>
        <translation>Raster:</translation>
    </message>
    <message>
        <source>Rasters (%1);;All files (*)</source>
        <translation>Raster (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Rasters found: %1</source>
        <translation>Gefundene Raster: %1</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Read about the window or the tool that is in use</source>
        <translation>Im Handbuch über das Fenster oder Werkzeug lesen, das gerade benutzt wird</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Reading the rows...</source>
        <translation>Die Zeilen werden gelesen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove Map</source>
        <translation>Karte entfernen</translation>
    </message>
    <message>
        <source>Remove the map &quot;%1&quot; from the server? All its layers, groups and schemes are lost, for everybody. This cannot be undone.</source>
        <translation>Die Karte „%1“ vom Server entfernen? Alle ihre Layer, Gruppen und Schemas gehen für alle verloren. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Rename Theme</source>
        <translation>Thema umbenennen</translation>
    </message>
    <message>
        <source>Rename Theme &quot;%1&quot;</source>
        <translation>Thema „%1“ umbenennen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Recht</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Rights on &quot;%1&quot;</source>
        <translation>Rechte an „%1“</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Roles are the users of the server, and groups of them. Those who may read see everything in the map; those who may edit can change it, too.</source>
        <translation>Rollen sind die Benutzer des Servers und Gruppen von ihnen. Wer lesen darf, sieht alles in der Karte; wer bearbeiten darf, kann sie auch ändern.</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>Zeilen: %1 von %2</translation>
    </message>
    <message>
        <source>Save &amp;Map on Server...</source>
        <translation>Karte auf de&amp;m Server speichern...</translation>
    </message>
    <message>
        <source>Save Map on Server</source>
        <translation>Karte auf dem Server speichern</translation>
    </message>
    <message>
        <source>Saving the map</source>
        <translation>Karte wird gespeichert</translation>
    </message>
    <message>
        <source>Scale of the map</source>
        <translation>Maßstab der Karte</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Search by name, code or area</source>
        <translation>Nach Name, Code oder Gebiet suchen</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Es wird gesucht...</translation>
    </message>
    <message>
        <source>Select features on the map first.</source>
        <translation>Wählen Sie zuerst Objekte auf der Karte aus.</translation>
    </message>
    <message>
        <source>Select fewer layers: each has a window of its own.</source>
        <translation>Wählen Sie weniger Layer: Jeder hat ein eigenes Fenster.</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;ver:</translation>
    </message>
    <message>
        <source>Show &amp;Selected Only</source>
        <translation>Nur &amp;Ausgewählte zeigen</translation>
    </message>
    <message>
        <source>Show all features of the layers that are chosen in the layer control</source>
        <translation>Alle Objekte der Layer zeigen, die in der Layersteuerung gewählt sind</translation>
    </message>
    <message>
        <source>Show all selected features</source>
        <translation>Alle ausgewählten Objekte zeigen</translation>
    </message>
    <message>
        <source>Show only the rows that are selected, here or on the map</source>
        <translation>Zeigt nur die Zeilen, die hier oder auf der Karte ausgewählt sind</translation>
    </message>
    <message>
        <source>Show the attributes of all features of a layer</source>
        <translation>Zeigt die Attribute aller Objekte eines Layers</translation>
    </message>
    <message>
        <source>Show the data of a layer, and choose their coordinate system</source>
        <translation>Die Daten eines Layers zeigen und ihr Koordinatensystem wählen</translation>
    </message>
    <message>
        <source>Show the part of the map that was shown before</source>
        <translation>Den Teil der Karte zeigen, der vorher zu sehen war</translation>
    </message>
    <message>
        <source>Show the selected features on the map</source>
        <translation>Zeigt die ausgewählten Objekte auf der Karte</translation>
    </message>
    <message>
        <source>Show the view from which you went back</source>
        <translation>Die Ansicht zeigen, von der aus zurückgegangen wurde</translation>
    </message>
    <message>
        <source>Shows only the rows that contain all these words; F3 goes to the next of them</source>
        <translation>Zeigt nur die Zeilen, die alle diese Wörter enthalten; F3 geht zur nächsten davon</translation>
    </message>
    <message>
        <source>Some data have no known place. --crs tells their coordinate system.</source>
        <translation>Die Lage einiger Daten ist nicht bekannt. --crs gibt ihr Koordinatensystem an.</translation>
    </message>
    <message>
        <source>Some of the rows below have no numbers there. They are left out.</source>
        <translation>Einige der Zeilen haben dort keine Zahlen. Sie werden ausgelassen.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Es wird sortiert...</translation>
    </message>
    <message>
        <source>Store the map on a PostgreSQL server and continue with it there</source>
        <translation>Die Karte auf einem PostgreSQL-Server speichern und dort mit ihr weiterarbeiten</translation>
    </message>
    <message>
        <source>Table &amp;Columns...</source>
        <translation>Tabellens&amp;palten...</translation>
    </message>
    <message>
        <source>Table Columns</source>
        <translation>Tabellenspalten</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Tables on the server</source>
        <translation>Tabellen auf dem Server</translation>
    </message>
    <message>
        <source>Tables with geometries</source>
        <translation>Tabellen mit Geometrien</translation>
    </message>
    <message>
        <source>Take all rights on the map back from ROLE.</source>
        <translation>ROLE alle Rechte an der Karte entziehen.</translation>
    </message>
    <message>
        <source>Take the server off this list; its maps stay</source>
        <translation>Den Server aus dieser Liste nehmen; seine Karten bleiben</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; can be neither replaced nor removed, because more would be lost: ^2. Move that away first.</source>
        <translation>Die Karte „^1“ kann weder ersetzt noch entfernt werden, weil mehr verloren ginge: ^2. Verschieben Sie das zuerst an einen anderen Ort.</translation>
    </message>
    <message>
        <source>The server has not answered yet. If you close this now, you will not learn whether it was done. Close it?</source>
        <translation>Der Server hat noch nicht geantwortet. Wenn Sie jetzt schließen, erfahren Sie nicht, ob es ausgeführt wurde. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>There is no secure connection to the server of &quot;^1&quot;: ^2</source>
        <translation>Es gibt keine sichere Verbindung zum Server von „^1“: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; answers with more than fits into memory. The connection was ended.</source>
        <translation>Der Server von „^1“ antwortet mit mehr, als in den Speicher passt. Die Verbindung wurde beendet.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; shares one connection between several programs. Connect without the program that does so, or let it pool sessions: ^2</source>
        <translation>Der Server von „^1“ teilt eine Verbindung unter mehreren Programmen auf. Verbinden Sie sich ohne das Programm, das dies tut, oder lassen Sie es ganze Sitzungen vergeben: ^2</translation>
    </message>
    <message>
        <source>The name &quot;^1&quot; is too long for a map on a server.</source>
        <translation>Der Name „^1“ ist zu lang für eine Karte auf einem Server.</translation>
    </message>
    <message>
        <source>You may not read the map &quot;^1&quot;. Its owner can give you the right to.</source>
        <translation>Sie dürfen die Karte „^1“ nicht lesen. Ihr Eigentümer kann Ihnen das Recht dazu geben.</translation>
    </message>
    <message>
        <source>Who may use the map &quot;^1&quot; can only be changed by its owner, ^2.</source>
        <translation>Wer die Karte „^1“ benutzen darf, kann nur ihr Eigentümer ändern: ^2.</translation>
    </message>
    <message>
        <source>The column of tables with geometries as text (WKT).</source>
        <translation>Die Spalte von Tabellen mit Geometrien als Text (WKT).</translation>
    </message>
    <message>
        <source>The columns of tables with the coordinates; without this they are guessed.</source>
        <translation>Die Spalten von Tabellen mit den Koordinaten; sonst werden sie erraten.</translation>
    </message>
    <message>
        <source>The connection to the server of &quot;^1&quot; was lost: ^2. What was not stored can be tried again.</source>
        <translation>Die Verbindung zum Server von „^1“ ist abgebrochen: ^2. Was nicht gespeichert wurde, können Sie noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The coordinate system of the data that name none, such as EPSG:25832; data that name one keep it. Without this option, degrees are assumed where they fit, else the map's system.</source>
        <translation>Das Koordinatensystem der Daten, die keines angeben, zum Beispiel EPSG:25832; Daten, die eines angeben, behalten es. Ohne diese Option werden Grad angenommen, wo sie passen, sonst das System der Karte.</translation>
    </message>
    <message>
        <source>The coordinate system of the map. Without this option, a map keeps its own; for a new map the data of the largest area decide.</source>
        <translation>Das Koordinatensystem der Karte. Ohne diese Option behält eine Karte ihr eigenes; bei einer neuen Karte entscheiden die Daten mit der größten Ausdehnung.</translation>
    </message>
    <message>
        <source>The coordinate system that was chosen for &quot;%1&quot; is not known: &quot;%2&quot;.</source>
        <translation>Das für „%1“ gewählte Koordinatensystem ist nicht bekannt: „%2“.</translation>
    </message>
    <message>
        <source>The coordinates in the data stay as they are; the system says where they lie.</source>
        <translation>Die Koordinaten in den Daten bleiben, wie sie sind; das System sagt, wo sie liegen.</translation>
    </message>
    <message>
        <source>The data of these layers are in no folder of this computer.</source>
        <translation>Die Daten dieser Layer liegen in keinem Ordner dieses Rechners.</translation>
    </message>
    <message>
        <source>The features of this layer have no attributes.</source>
        <translation>Die Objekte dieses Layers haben keine Attribute.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be opened.</source>
        <translation>Der Ordner „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; cannot be read: %2</source>
        <translation>Das Handbuch „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>The layer is not selectable on the map.</source>
        <translation>Der Layer ist auf der Karte nicht wählbar.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; belongs to %2. Choose another name.</source>
        <translation>Die Karte „%1“ gehört %2. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open by %2 and cannot be replaced now.</source>
        <translation>Die Karte „%1“ ist bei %2 geöffnet und kann jetzt nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>The map does not show these features.</source>
        <translation>Die Karte zeigt diese Objekte nicht.</translation>
    </message>
    <message>
        <source>The map has no coordinate system yet; click to choose one.</source>
        <translation>Die Karte hat noch kein Koordinatensystem; klicken Sie, um eines zu wählen.</translation>
    </message>
    <message>
        <source>The map has no features of the chosen layers.</source>
        <translation>Die Karte hat keine Objekte der gewählten Layer.</translation>
    </message>
    <message>
        <source>The map has no layer with data.</source>
        <translation>Die Karte hat keinen Layer mit Daten.</translation>
    </message>
    <message>
        <source>The map is read-only. You can look at everything, but change nothing.</source>
        <translation>Die Karte ist schreibgeschützt. Sie können alles ansehen, aber nichts ändern.</translation>
    </message>
    <message>
        <source>The map, such as &quot;postgresql:///maps?schema=Town&quot;.</source>
        <translation>Die Karte, zum Beispiel „postgresql:///maps?schema=Town“.</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains a password. Leave it out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>Der Ort „^1“ enthält ein Kennwort. Lassen Sie es weg: Es gehört in die Kennwortdatei von PostgreSQL, oder Sie werden danach gefragt.</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains the setting &quot;^2&quot;, which may only be in a service file of PostgreSQL.</source>
        <translation>Der Ort „^1“ enthält die Einstellung „^2“, die nur in einer Dienstdatei von PostgreSQL stehen darf.</translation>
    </message>
    <message>
        <source>The rows stay as they were. %1</source>
        <translation>Die Zeilen bleiben, wie sie waren. %1</translation>
    </message>
    <message>
        <source>The scale of the map. Type another one, such as %1, and press Enter.</source>
        <translation>Der Maßstab der Karte. Geben Sie einen anderen ein, zum Beispiel %1, und drücken Sie die Eingabetaste.</translation>
    </message>
    <message>
        <source>The server did not accept the password.</source>
        <translation>Der Server hat das Kennwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The server does not allow this to you on &quot;^1&quot;: ^2</source>
        <translation>Der Server erlaubt Ihnen das bei „^1“ nicht: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; cannot be reached: ^2</source>
        <translation>Der Server von „^1“ ist nicht erreichbar: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; does not answer. What was not stored can be tried again.</source>
        <translation>Der Server von „^1“ antwortet nicht. Was nicht gespeichert wurde, können Sie noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; has not enough memory for this.</source>
        <translation>Dem Server von „^1“ fehlt dafür der Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; refused the user or the password: ^2</source>
        <translation>Der Server von „^1“ hat den Benutzer oder das Kennwort abgelehnt: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; runs PostgreSQL ^2. Version 13 or a newer one is needed.</source>
        <translation>Auf dem Server von „^1“ läuft PostgreSQL ^2. Nötig ist Version 13 oder eine neuere.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; takes no more connections at present. Try again in a moment.</source>
        <translation>Der Server von „^1“ nimmt zurzeit keine weiteren Verbindungen an. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is open: ^2. Try again when it is closed there.</source>
        <translation>Die Karte „^1“ ist geöffnet: ^2. Versuchen Sie es noch einmal, wenn sie dort geschlossen ist.</translation>
    </message>
    <message>
        <source>There are no PostGIS tables on this server that you may read.</source>
        <translation>Auf diesem Server gibt es keine PostGIS-Tabellen, die Sie lesen dürfen.</translation>
    </message>
    <message>
        <source>There are no maps on this server yet that you may open.</source>
        <translation>Auf diesem Server gibt es noch keine Karten, die Sie öffnen dürfen.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; on the server already. Replace it, for everybody?</source>
        <translation>Auf dem Server gibt es bereits eine Karte „%1“. Soll sie für alle ersetzt werden?</translation>
    </message>
    <message>
        <source>There is no map &quot;^1&quot; on this server.</source>
        <translation>Auf diesem Server gibt es keine Karte „^1“.</translation>
    </message>
    <message>
        <source>The map: a file, or a place on a server.</source>
        <translation>Die Karte: eine Datei oder ein Ort auf einem Server.</translation>
    </message>
    <message>
        <source>--repair is for map files; a map on a server is only checked.</source>
        <translation>--repair ist für Kartendateien; eine Karte auf einem Server wird nur geprüft.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was copied to &quot;%2&quot;.</source>
        <translation>„%1“ wurde nach „%2“ kopiert.</translation>
    </message>
    <message>
        <source>Replace the map that is at the new place, unless it is open anywhere.</source>
        <translation>Die Karte am neuen Ort ersetzen, sofern sie nirgends geöffnet ist.</translation>
    </message>
    <message>
        <source>Where the copy is made: a file, or a place on a server.</source>
        <translation>Wo die Kopie entsteht: eine Datei oder ein Ort auf einem Server.</translation>
    </message>
    <message>
        <source>Copy a map with all its layers, groups, schemes and themes: a file to a server, a map on a server to a file, or one to another of the same kind. The data of the layers stay where they are. A place on a server is written as postgresql://SERVER/DATABASE?schema=MAP.
Exit code: 0 the copy is complete, 1 there is none, 2 the command was not understood.</source>
        <translation>Eine Karte mit allen Layern, Gruppen, Schemas und Themen kopieren: eine Datei auf einen Server, eine Karte auf einem Server in eine Datei oder beides innerhalb derselben Art. Die Daten der Layer bleiben, wo sie sind. Ein Ort auf einem Server wird als postgresql://SERVER/DATENBANK?schema=KARTE geschrieben.
Rückgabewert: 0 die Kopie ist vollständig, 1 es gibt keine, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>The layers of &quot;^1&quot; are kept in a way that cannot be copied.</source>
        <translation>Die Layer von „^1“ liegen in einer Form vor, die nicht kopiert werden kann.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because values do not fit their columns: ^2. In a map file, &quot;orvane check --repair&quot; replaces such values.</source>
        <translation>„^1“ kann nicht kopiert werden, weil Werte nicht in ihre Spalten passen: ^2. In einer Kartendatei ersetzt „orvane check --repair“ solche Werte.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; was not copied because rows of the table &quot;^2&quot; are missing in the copy.</source>
        <translation>„^1“ wurde nicht kopiert, weil in der Kopie Zeilen der Tabelle „^2“ fehlen.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because rows of the table &quot;^2&quot; refer to rows that are missing. In a map file, &quot;orvane check --repair&quot; removes such rows.</source>
        <translation>„^1“ kann nicht kopiert werden, weil Zeilen der Tabelle „^2“ auf fehlende Zeilen verweisen. In einer Kartendatei entfernt „orvane check --repair“ solche Zeilen.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created because the server has something of that name already.</source>
        <translation>Die Karte „^1“ kann nicht angelegt werden, weil es auf dem Server schon etwas mit diesem Namen gibt.</translation>
    </message>
    <message>
        <source>Changes to &quot;^1&quot; cannot be undone because your role may not make temporary tables in its database.</source>
        <translation>Änderungen an „^1“ lassen sich nicht rückgängig machen, weil Ihre Rolle in der Datenbank keine temporären Tabellen anlegen darf.</translation>
    </message>
    <message>
        <source>It is not known what the last operation changed in &quot;^1&quot;; it cannot be undone.</source>
        <translation>Es ist nicht bekannt, was der letzte Vorgang in „^1“ geändert hat; er lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains &quot;^2&quot;, which does not belong in a map.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Sie enthält „^2“, was nicht in eine Karte gehört.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; is joined with others outside of it.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Die Tabelle „^2“ ist mit Tabellen außerhalb der Karte verknüpft.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; lacks a trigger that tells others what has changed.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Der Tabelle „^2“ fehlt ein Trigger, der anderen mitteilt, was sich geändert hat.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: everybody may create objects in the schema &quot;^2&quot;.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Im Schema „^2“ darf jeder Objekte anlegen.</translation>
    </message>
    <message>
        <source>The source cannot be read.</source>
        <translation>Die Quelle kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The source names none; the coordinates are taken as those of the map.</source>
        <translation>Die Quelle gibt keines an; die Koordinaten werden als die der Karte genommen.</translation>
    </message>
    <message>
        <source>The source says so.</source>
        <translation>Die Quelle gibt es so an.</translation>
    </message>
    <message>
        <source>The statement ^2 cannot be run on &quot;^1&quot; by itself.</source>
        <translation>Die Anweisung ^2 kann auf „^1“ nicht für sich ausgeführt werden.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; of &quot;%2&quot; lacks the column &quot;%3&quot; with coordinates.</source>
        <translation>In der Tabelle „%1“ von „%2“ fehlt die Spalte „%3“ mit Koordinaten.</translation>
    </message>
    <message>
        <source>There is already a theme &quot;%1&quot;.</source>
        <translation>Ein Thema „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>Es gibt keine frühere Ansicht.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>Es gibt keine spätere Ansicht.</translation>
    </message>
    <message>
        <source>There is no table &quot;%1&quot; with geometries on the server that you may read.</source>
        <translation>Auf dem Server gibt es keine Tabelle „%1“ mit Geometrien, die Sie lesen dürfen.</translation>
    </message>
    <message>
        <source>These layers are in too many different folders.</source>
        <translation>Diese Layer liegen in zu vielen verschiedenen Ordnern.</translation>
    </message>
    <message>
        <source>This is a folder: choose a file in it, or drop the folder on the map to add all its data.</source>
        <translation>Das ist ein Ordner: Wählen Sie eine Datei darin, oder ziehen Sie den Ordner auf die Karte, um alle seine Daten hinzuzufügen.</translation>
    </message>
    <message>
        <source>This is not a known coordinate system.</source>
        <translation>Dies ist kein bekanntes Koordinatensystem.</translation>
    </message>
    <message>
        <source>This layer has no data, and so no attributes.</source>
        <translation>Dieser Layer hat keine Daten und daher keine Attribute.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Where are the coordinates of the rows?</source>
        <translation>Wo stehen die Koordinaten der Zeilen?</translation>
    </message>
    <message>
        <source>Where the data of %1 lie is not known: they could not be read to the end.</source>
        <translation>Wo die Daten von %1 liegen, ist nicht bekannt: Sie konnten nicht bis zum Ende gelesen werden.</translation>
    </message>
    <message>
        <source>Write JSON, for scripts.</source>
        <translation>JSON schreiben, für Skripte.</translation>
    </message>
    <message>
        <source>X and Y are the same column.</source>
        <translation>X und Y sind dieselbe Spalte.</translation>
    </message>
    <message>
        <source>Yellow to red</source>
        <translation>Gelb nach Rot</translation>
    </message>
    <message>
        <source>Yellow to violet</source>
        <translation>Gelb nach Violett</translation>
    </message>
    <message>
        <source>You may</source>
        <translation>Sie dürfen</translation>
    </message>
    <message>
        <source>You may read this map, but not change it. Its owner can give you the right to edit it.</source>
        <translation>Sie dürfen diese Karte lesen, aber nicht ändern. Der Besitzer kann Ihnen das Recht dazu geben.</translation>
    </message>
    <message>
        <source>Zoom to &amp;Layer</source>
        <translation>Auf &amp;Layer zoomen</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Auf Auswahl &amp;zoomen</translation>
    </message>
    <message>
        <source>Zoom to a rectangle that you draw; with every other tool, hold Shift and drag</source>
        <translation>Auf ein Rechteck zoomen, das man aufzieht; mit jedem anderen Werkzeug bei gedrückter Umschalttaste ziehen</translation>
    </message>
    <message>
        <source>compared: %1</source>
        <translation>verglichen: %1</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Enthält</translation>
    </message>
    <message>
        <source>In Your Own Order</source>
        <translation>In eigener Reihenfolge</translation>
    </message>
    <message>
        <source>It does not say which properties it holds.</source>
        <translation>Sie sagt nicht, welche Eigenschaften sie enthält.</translation>
    </message>
    <message>
        <source>It gets the present values of the layers. The current scheme stays current.</source>
        <translation>Es erhält die jetzigen Werte der Layer. Das aktuelle Schema bleibt aktuell.</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Zuletzt gespeichert</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>Neues Schema</translation>
    </message>
    <message>
        <source>Reorder Schemes</source>
        <translation>Umordnen der Schemas</translation>
    </message>
    <message>
        <source>S&amp;ort by Name</source>
        <translation>Nach Na&amp;men sortieren</translation>
    </message>
    <message>
        <source>Sort Schemes by Name</source>
        <translation>Sortieren der Schemas nach Namen</translation>
    </message>
    <message>
        <source>Sort &amp;Table</source>
        <translation>&amp;Tabelle sortieren</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the map was opened.</source>
        <translation>Das Schema „%1“ wurde beim Öffnen der Karte angewendet.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the project was opened.</source>
        <translation>Das Schema „%1“ wurde beim Öffnen des Projekts angewendet.</translation>
    </message>
    <message>
        <source>The scheme holds:</source>
        <translation>Das Schema enthält:</translation>
    </message>
    <message>
        <source>The table is sorted by a column. Go back to your own order first.</source>
        <translation>Die Tabelle ist nach einer Spalte sortiert. Gehen Sie zuerst zur eigenen Reihenfolge zurück.</translation>
    </message>
    <message>
        <source>conditions are not supported for tables on a server</source>
        <translation>Bedingungen werden für Tabellen auf einem Server nicht unterstützt</translation>
    </message>
    <message>
        <source>it lacks a column with coordinates</source>
        <translation>eine Spalte mit Koordinaten fehlt</translation>
    </message>
    <message>
        <source>its points are numbers in a table</source>
        <translation>seine Punkte sind Zahlen in einer Tabelle</translation>
    </message>
    <message>
        <source>its primary key is not one whole number</source>
        <translation>der Primärschlüssel ist nicht eine einzelne ganze Zahl</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>keine Daten</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>the two schemes hold nothing in common</source>
        <translation>die beiden Schemas enthalten nichts Gemeinsames</translation>
    </message>
    <message>
        <source>--time-limit needs a whole number of seconds.</source>
        <translation>--time-limit braucht eine ganze Zahl von Sekunden.</translation>
    </message>
    <message>
        <source>... and %1 more values.</source>
        <translation>... und %1 weitere Werte.</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... und %1 weitere.</translation>
    </message>
    <message>
        <source>1:%1</source>
        <translation>1:%1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;A small desktop map program, the host of the Orvane layer control.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;Ein kleines Kartenprogramm für den Schreibtisch, das die Layersteuerung von Orvane beherbergt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;keine&gt;</translation>
    </message>
    <message>
        <source>A layer cannot be created in the file &quot;%1&quot;.</source>
        <translation>In der Datei „%1“ kann kein Layer angelegt werden.</translation>
    </message>
    <message>
        <source>A layer from map &amp;data</source>
        <translation>Layer aus &amp;Kartendaten</translation>
    </message>
    <message>
        <source>A list has an entry with the ID %1.</source>
        <translation>Eine Liste hat einen Eintrag mit der ID %1.</translation>
    </message>
    <message>
        <source>A list has the ID %1 twice.</source>
        <translation>Eine Liste enthält die ID %1 zweimal.</translation>
    </message>
    <message>
        <source>A longer operation on &quot;^1&quot; is not finished yet. Wait until it is, or cancel it.</source>
        <translation>Ein längerer Vorgang für „^1“ ist noch nicht beendet. Warten Sie, bis er beendet ist, oder brechen Sie ihn ab.</translation>
    </message>
    <message>
        <source>A picture of %1 by %2 pixels is too large.</source>
        <translation>Ein Bild von %1 mal %2 Pixeln ist zu groß.</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was changed without beginning an edit.</source>
        <translation>Eine Zeile von „^1“ wurde geändert, ohne eine Bearbeitung zu beginnen.</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was sought before an index was chosen.</source>
        <translation>Eine Zeile von „^1“ wurde gesucht, bevor ein Index gewählt war.</translation>
    </message>
    <message>
        <source>A statement on &quot;^1&quot; was given another number of values than it takes.</source>
        <translation>Einer Anweisung für „^1“ wurde eine falsche Anzahl von Werten übergeben.</translation>
    </message>
    <message>
        <source>A temporary copy of &quot;%1&quot; cannot be made in the folder &quot;%2&quot;. Make room there, or set TMPDIR to another folder.</source>
        <translation>Im Ordner „%2“ kann keine temporäre Kopie von „%1“ angelegt werden. Schaffen Sie dort Platz oder setzen Sie TMPDIR auf einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>A&amp;ttribute:</source>
        <translation>A&amp;ttribut:</translation>
    </message>
    <message>
        <source>A5 to A0, Letter, Legal, Tabloid, 200x150mm or 1600x900px. The default is A4.</source>
        <translation>A5 bis A0, Letter, Legal, Tabloid, 200x150mm oder 1600x900px. Voreinstellung: A4.</translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation>Über Orvane</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>Add map data from files to the map</source>
        <translation>Der Karte Kartendaten aus Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Adding layers to the map</source>
        <translation>Layer werden zur Karte hinzugefügt</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Alle Eigenschaften</translation>
    </message>
    <message>
        <source>All schemes of this map were saved for new maps.</source>
        <translation>Alle Schemas dieser Karte wurden für neue Karten gespeichert.</translation>
    </message>
    <message>
        <source>All schemes of this project were saved for new projects.</source>
        <translation>Alle Schemas dieses Projekts wurden für neue Projekte gespeichert.</translation>
    </message>
    <message>
        <source>An &amp;empty layer</source>
        <translation>&amp;Leerer Layer</translation>
    </message>
    <message>
        <source>An argument is missing.</source>
        <translation>Ein Argument fehlt.</translation>
    </message>
    <message>
        <source>An earlier change to the map &quot;^1&quot; failed and cannot be undone at present: ^2. Try again, or open the map again.</source>
        <translation>Eine frühere Änderung an der Karte „^1“ ist fehlgeschlagen und kann derzeit nicht zurückgenommen werden: ^2. Versuchen Sie es erneut oder öffnen Sie die Karte noch einmal.</translation>
    </message>
    <message>
        <source>An empty value cannot be stored in &quot;^1&quot;.</source>
        <translation>Ein leerer Wert kann nicht in „^1“ gespeichert werden.</translation>
    </message>
    <message>
        <source>An unknown error has occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Area: %1, perimeter: %2</source>
        <translation>Fläche: %1, Umfang: %2</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>As a picture: %1 × %2 pixels</source>
        <translation>Als Bild: %1 × %2 Pixel</translation>
    </message>
    <message>
        <source>At the scale &amp;1:</source>
        <translation>Im Maßstab &amp;1:</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Automatic (%1)</source>
        <translation>Automatisch (%1)</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>Du&amp;rchsuchen...</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>background</source>
        <translation>Füllhintergrund</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Füllhintergrund</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cased lines</source>
        <translation>Linien mit Rand</translation>
    </message>
    <message>
        <source>Cased lines, labelled</source>
        <translation>Linien mit Rand, beschriftet</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>Änderung an „%1“</translation>
    </message>
    <message>
        <source>Change %1 Layers</source>
        <translation>Änderung an %1 Layern</translation>
    </message>
    <message>
        <source>Change Code of &quot;%1&quot;</source>
        <translation>Ändern des Codes von „%1“</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>Anderswo geändert</translation>
    </message>
    <message>
        <source>Changes in the layer control that were not applied have been dropped.</source>
        <translation>Änderungen in der Layersteuerung, die nicht angewendet waren, wurden verworfen.</translation>
    </message>
    <message>
        <source>Changes made in one window are saved immediately and appear in the other within a second.</source>
        <translation>Änderungen in einem Fenster werden sofort gespeichert und erscheinen innerhalb einer Sekunde im anderen.</translation>
    </message>
    <message>
        <source>Check a map for damage, invalid values, broken references and missing data.
Exit code: 0 no problems, 1 problems found, 2 the command was not understood.</source>
        <translation>Eine Karte auf Schäden, ungültige Werte, ungültige Verweise und fehlende Daten prüfen.
Rückgabewert: 0 keine Probleme, 1 Probleme gefunden, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>Choose the attributes that label and colour the features of a layer</source>
        <translation>Wählt die Attribute, die die Objekte eines Layers beschriften und färben</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Click a feature with the Identify tool.</source>
        <translation>Klicken Sie mit dem Werkzeug „Abfragen“ auf ein Objekt.</translation>
    </message>
    <message>
        <source>Click to set a vertex, double-click to end.</source>
        <translation>Klicken setzt einen Stützpunkt, Doppelklicken beendet.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>Com&amp;pare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Comparing Schemes</source>
        <translation>Vergleich der Schemas</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie von %1</translation>
    </message>
    <message>
        <source>Create &quot;%1&quot;</source>
        <translation>Anlegen von „%1“</translation>
    </message>
    <message>
        <source>Create Scheme &quot;%1&quot;</source>
        <translation>Anlegen des Schemas „%1“</translation>
    </message>
    <message>
        <source>Create a new map file</source>
        <translation>Eine neue Kartendatei anlegen</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Benutzerdefinierte Größe</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>&amp;Duplizieren...</translation>
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
        <source>Data f&amp;ile:</source>
        <translation>Da&amp;tendatei:</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Löschen von „%1“</translation>
    </message>
    <message>
        <source>Delete %1 Layers</source>
        <translation>Löschen von %1 Layern</translation>
    </message>
    <message>
        <source>Delete %1 layers?</source>
        <translation>%1 Layer löschen?</translation>
    </message>
    <message>
        <source>Delete %1 Schemes</source>
        <translation>Löschen von %1 Schemas</translation>
    </message>
    <message>
        <source>Delete %1 schemes? The layers stay as they are.</source>
        <translation>%1 Schemas löschen? Die Layer bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete Layer</source>
        <translation>Layer löschen</translation>
    </message>
    <message>
        <source>Delete Layers</source>
        <translation>Layer löschen</translation>
    </message>
    <message>
        <source>Delete Scheme &quot;%1&quot;</source>
        <translation>Löschen des Schemas „%1“</translation>
    </message>
    <message>
        <source>Delete Schemes</source>
        <translation>Schemas löschen</translation>
    </message>
    <message>
        <source>Delete the scheme &quot;%1&quot;? The layers stay as they are.</source>
        <translation>Das Schema „%1“ löschen? Die Layer bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Thema löschen</translation>
    </message>
    <message>
        <source>Delete the layer &quot;%1&quot;?</source>
        <translation>Layer „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete the theme &quot;%1&quot;? Its layers stay in the map.</source>
        <translation>Thema „%1“ löschen? Seine Layer bleiben in der Karte.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Unterschiede: %1</translation>
    </message>
    <message>
        <source>Differences: %1 of %2</source>
        <translation>Unterschiede: %1 von %2</translation>
    </message>
    <message>
        <source>display mode</source>
        <translation>Darstellungsart</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>Darstellungsart</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Dots per inch. The default is 300, or 96 for a size in pixels.</source>
        <translation>Punkte je Zoll. Voreinstellung: 300, bei einer Größe in Pixeln 96.</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>Gepunktete Linie</translation>
    </message>
    <message>
        <source>Drag a feature to move it.</source>
        <translation>Ziehen verschiebt ein Objekt.</translation>
    </message>
    <message>
        <source>Drag the feature of %1 to move it.</source>
        <translation>Ziehen verschiebt das Objekt von %1.</translation>
    </message>
    <message>
        <source>Drag the map, zoom with the wheel</source>
        <translation>Die Karte ziehen, mit dem Rad zoomen</translation>
    </message>
    <message>
        <source>Draw a map as PDF, SVG or PNG. The map file is only read.
Exit code: 0 all was drawn, 1 something was not, 2 the command was not understood.</source>
        <translation>Eine Karte als PDF, SVG oder PNG zeichnen. Die Kartendatei wird nur gelesen.
Rückgabewert: 0 alles wurde gezeichnet, 1 etwas nicht, 2 der Befehl wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>Draw at the scale 1:N around the middle of the map.</source>
        <translation>Im Maßstab 1:N um die Kartenmitte zeichnen.</translation>
    </message>
    <message>
        <source>draw priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Draw the layers as this scheme has them; the map file stays as it is.</source>
        <translation>Die Layer so zeichnen, wie dieses Schema sie hat; die Kartendatei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Drawing the map</source>
        <translation>Die Karte wird gezeichnet</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>Zeichnen...</translation>
    </message>
    <message>
        <source>Others who have the map open: %1</source>
        <translation>Andere, die die Karte geöffnet haben: %1</translation>
    </message>
    <message>
        <source>Connection lost, trying again</source>
        <translation>Verbindung verloren, neuer Versuch folgt</translation>
    </message>
    <message>
        <source>The server of the map cannot be reached. What is not applied stays here.</source>
        <translation>Der Server der Karte ist nicht erreichbar. Was nicht angewendet ist, bleibt hier erhalten.</translation>
    </message>
    <message>
        <source>Connecting again...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>The server of the map is being contacted again.</source>
        <translation>Der Server der Karte wird erneut angesprochen.</translation>
    </message>
    <message>
        <source>Try Now</source>
        <translation>Jetzt versuchen</translation>
    </message>
    <message>
        <source>Connect to the server of the map now</source>
        <translation>Jetzt mit dem Server der Karte verbinden</translation>
    </message>
    <message>
        <source>Duplicate Scheme</source>
        <translation>Schema duplizieren</translation>
    </message>
    <message>
        <source>Duplicate Scheme &quot;%1&quot;</source>
        <translation>Duplizieren des Schemas „%1“</translation>
    </message>
    <message>
        <source>Edits the properties of many layers at once, and keeps them in schemes.</source>
        <translation>Bearbeitet die Eigenschaften vieler Layer auf einmal und hält sie in Schemas fest.</translation>
    </message>
    <message>
        <source>End the check of the file after that time; 0 for no limit. The default is 600.</source>
        <translation>Die Prüfung der Datei nach dieser Zeit beenden; 0 für keine Grenze. Voreinstellung: 600.</translation>
    </message>
    <message>
        <source>enquirable</source>
        <translation>abfragbar</translation>
    </message>
    <message>
        <source>Enquirable</source>
        <translation>Abfragbar</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>Equal counts</source>
        <translation>Gleiche Anzahl</translation>
    </message>
    <message>
        <source>Equal steps</source>
        <translation>Gleiche Schritte</translation>
    </message>
    <message>
        <source>Export Map</source>
        <translation>Karte exportieren</translation>
    </message>
    <message>
        <source>Export Map Theme &quot;%1&quot;</source>
        <translation>Kartenthema „%1“ exportieren</translation>
    </message>
    <message>
        <source>Export Scheme</source>
        <translation>Schema exportieren</translation>
    </message>
    <message>
        <source>Export Scheme &quot;%1&quot;</source>
        <translation>Export des Schemas „%1“</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme</source>
        <translation>Schema als Kartenthema exportieren</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme...</source>
        <translation>Schema als Kartenthema exportieren...</translation>
    </message>
    <message>
        <source>Export Scheme...</source>
        <translation>Schema exportieren...</translation>
    </message>
    <message>
        <source>Extent of the &amp;window, fitted to the page</source>
        <translation>Ausschnitt des &amp;Fensters, an die Seite angepasst</translation>
    </message>
    <message>
        <source>Feature %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>Feature Attributes</source>
        <translation>Objektattribute</translation>
    </message>
    <message>
        <source>Features found: %1</source>
        <translation>Gefundene Objekte: %1</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Files, or folders with files in them.</source>
        <translation>Dateien, oder Ordner mit Dateien.</translation>
    </message>
    <message>
        <source>fill colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>fill style</source>
        <translation>Fülltyp</translation>
    </message>
    <message>
        <source>Fill style</source>
        <translation>Fülltyp</translation>
    </message>
    <message>
        <source>Find Missing Data</source>
        <translation>Fehlende Daten suchen</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>GeoPackage</source>
        <translation>GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage &amp;file:</source>
        <translation>GeoPackage-&amp;Datei:</translation>
    </message>
    <message>
        <source>GeoPackages (*.gpkg)</source>
        <translation>GeoPackages (*.gpkg)</translation>
    </message>
    <message>
        <source>Give the layers of the map the chosen values of the column &quot;To&quot;.</source>
        <translation>Den Layern der Karte die gewählten Werte der Spalte „Nach“ geben.</translation>
    </message>
    <message>
        <source>Graduated</source>
        <translation>Abgestuft</translation>
    </message>
    <message>
        <source>Graduated, labelled</source>
        <translation>Abgestuft, beschriftet</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Highlight features of hitable layers under the pointer with any tool</source>
        <translation>Objekte anklickbarer Layer unter dem Zeiger hervorheben, mit jedem Werkzeug</translation>
    </message>
    <message>
        <source>Hitable</source>
        <translation>Anklickbar</translation>
    </message>
    <message>
        <source>Import Map Theme &quot;%1&quot;</source>
        <translation>Kartenthema „%1“ importieren</translation>
    </message>
    <message>
        <source>Import Map Themes</source>
        <translation>Kartenthemen importieren</translation>
    </message>
    <message>
        <source>Import Map Themes...</source>
        <translation>Kartenthemen importieren...</translation>
    </message>
    <message>
        <source>hitable</source>
        <translation>anklickbar</translation>
    </message>
    <message>
        <source>Import Scheme</source>
        <translation>Schema importieren</translation>
    </message>
    <message>
        <source>Import Scheme &quot;%1&quot;</source>
        <translation>Import des Schemas „%1“</translation>
    </message>
    <message>
        <source>Import Scheme...</source>
        <translation>Schema importieren...</translation>
    </message>
    <message>
        <source>In the file, not in the map:</source>
        <translation>In der Datei, nicht in der Karte:</translation>
    </message>
    <message>
        <source>In the map, not in the file:</source>
        <translation>In der Karte, nicht in der Datei:</translation>
    </message>
    <message>
        <source>It contains a line that is too long.</source>
        <translation>Sie enthält eine zu lange Zeile.</translation>
    </message>
    <message>
        <source>It does not contain a scheme name.</source>
        <translation>Sie enthält keinen Schemanamen.</translation>
    </message>
    <message>
        <source>It does not contain a valid version number.</source>
        <translation>Sie enthält keine gültige Versionsnummer.</translation>
    </message>
    <message>
        <source>It holds no layers.</source>
        <translation>Sie enthält keine Layer.</translation>
    </message>
    <message>
        <source>it is in none of these folders: %1</source>
        <translation>sie ist in keinem dieser Ordner: %1</translation>
    </message>
    <message>
        <source>It is not a layer scheme.</source>
        <translation>Sie ist kein Layerschema.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is not valid JSON (error at byte %1).</source>
        <translation>Sie ist kein gültiges JSON (Fehler bei Byte %1).</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Sie ist zu groß.</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>es dauert zu lange</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;%1&quot;, this program with &quot;%2&quot;</source>
        <translation>sie wurde mit der Standardbibliothek „%1“ erstellt, dieses Programm mit „%2“</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>Sie wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>It will be removed from its groups: %1.</source>
        <translation>Er wird aus seinen Gruppen entfernt: %1.</translation>
    </message>
    <message>
        <source>Its data file stays. You can undo the deletion.</source>
        <translation>Seine Datendatei bleibt. Das Löschen kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Its saved values will be removed from the layer schemes: %1.</source>
        <translation>Seine gespeicherten Werte werden aus den Layerschemas entfernt: %1.</translation>
    </message>
    <message>
        <source>Labelled</source>
        <translation>Beschriftet</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot;: %2</source>
        <translation>Layer „%1“: %2</translation>
    </message>
    <message>
        <source>Layer %1 has no valid &quot;%2&quot;.</source>
        <translation>Layer %1 hat keinen gültigen Wert „%2“.</translation>
    </message>
    <message>
        <source>Layer &amp;Rendering...</source>
        <translation>Layer&amp;darstellung...</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>Layersteuerung</translation>
    </message>
    <message>
        <source>Layer Rendering</source>
        <translation>Layerdarstellung</translation>
    </message>
    <message>
        <source>Layer schemes</source>
        <translation>Layerschemas</translation>
    </message>
    <message>
        <source>Layer schemes (*.json)</source>
        <translation>Layerschemas (*.json)</translation>
    </message>
    <message>
        <source>Layer schemes (*.json);;All files (*)</source>
        <translation>Layerschemas (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Layers added to &quot;%1&quot;: %2</source>
        <translation>Zu „%1“ hinzugefügte Layer: %2</translation>
    </message>
    <message>
        <source>Layers differ from the scheme &quot;%1&quot;. Save it before switching to &quot;%2&quot;?</source>
        <translation>Layer weichen vom Schema „%1“ ab. Soll es vor dem Wechsel zu „%2“ gespeichert werden?</translation>
    </message>
    <message>
        <source>Layers in both the file and this map: %1</source>
        <translation>Layer in der Datei und in dieser Karte: %1</translation>
    </message>
    <message>
        <source>Layers not in the scheme &quot;%1&quot;, left unchanged: %2</source>
        <translation>Layer, die nicht im Schema „%1“ sind und nicht geändert wurden: %2</translation>
    </message>
    <message>
        <source>Layers of the file that this map does not have: %1</source>
        <translation>Layer der Datei, die diese Karte nicht hat: %1</translation>
    </message>
    <message>
        <source>Layers of this map that the file does not have, which keep their values: %1</source>
        <translation>Layer dieser Karte, die die Datei nicht hat und die ihre Werte behalten: %1</translation>
    </message>
    <message>
        <source>Layers that differ</source>
        <translation>Abweichende Layer</translation>
    </message>
    <message>
        <source>Layers that differ from the scheme &quot;%1&quot;: %2</source>
        <translation>Layer, die vom Schema „%1“ abweichen: %2</translation>
    </message>
    <message>
        <source>Leave the legend out.</source>
        <translation>Die Legende weglassen.</translation>
    </message>
    <message>
        <source>Leave the scale bar out.</source>
        <translation>Die Maßstabsleiste weglassen.</translation>
    </message>
    <message>
        <source>Length: %1</source>
        <translation>Länge: %1</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>line colour, or its use for symbols</source>
        <translation>Linienfarbe oder ihre Verwendung für Symbole</translation>
    </message>
    <message>
        <source>line style</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Load Scheme &quot;%1&quot;</source>
        <translation>Laden des Schemas „%1“</translation>
    </message>
    <message>
        <source>Load Startup Schemes</source>
        <translation>Laden der Startschemas</translation>
    </message>
    <message>
        <source>Loading the schemes</source>
        <translation>Schemata werden geladen</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Looking for map data</source>
        <translation>Kartendaten werden gesucht</translation>
    </message>
    <message>
        <source>Manage Schemes</source>
        <translation>Schemas verwalten</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Map Data</source>
        <translation>Kartendaten</translation>
    </message>
    <message>
        <source>Map File</source>
        <translation>Kartendatei</translation>
    </message>
    <message>
        <source>Map Tools</source>
        <translation>Kartenwerkzeuge</translation>
    </message>
    <message>
        <source>Map elements</source>
        <translation>Kartenelemente</translation>
    </message>
    <message>
        <source>Maps (*.orvane)</source>
        <translation>Karten (*.orvane)</translation>
    </message>
    <message>
        <source>Maps (*.orvane);;All files (*)</source>
        <translation>Karten (*.orvane);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>maximum scale</source>
        <translation>Maximum der Maßstäbe</translation>
    </message>
    <message>
        <source>Maximum visible scale</source>
        <translation>Größter sichtbarer Maßstab</translation>
    </message>
    <message>
        <source>Measure &amp;Area</source>
        <translation>&amp;Fläche messen</translation>
    </message>
    <message>
        <source>Measure &amp;Length</source>
        <translation>&amp;Länge messen</translation>
    </message>
    <message>
        <source>Measure a line; its vertices snap to layers with snapping turned on</source>
        <translation>Eine Linie messen; ihre Stützpunkte rasten an Layern mit eingeschaltetem Fang ein</translation>
    </message>
    <message>
        <source>Measure an area; its vertices snap to layers with snapping turned on</source>
        <translation>Eine Fläche messen; ihre Stützpunkte rasten an Layern mit eingeschaltetem Fang ein</translation>
    </message>
    <message>
        <source>minimum scale</source>
        <translation>Minimum der Maßstäbe</translation>
    </message>
    <message>
        <source>Minimum visible scale</source>
        <translation>Kleinster sichtbarer Maßstab</translation>
    </message>
    <message>
        <source>Move Feature in %1</source>
        <translation>Verschieben eines Objekts in %1</translation>
    </message>
    <message>
        <source>Move a feature of an unlocked layer by dragging it</source>
        <translation>Ein Objekt eines nicht gesperrten Layers durch Ziehen verschieben</translation>
    </message>
    <message>
        <source>Moved a feature of %1.</source>
        <translation>Ein Objekt von %1 wurde verschoben.</translation>
    </message>
    <message>
        <source>Moving a feature of %1. Press Esc to cancel.</source>
        <translation>Ein Objekt von %1 wird verschoben. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Moving the feature</source>
        <translation>Das Objekt wird verschoben</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>New Layer</source>
        <translation>Neuer Layer</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>New scratch layer</source>
        <translation>Neuer temporärer Layer</translation>
    </message>
    <message>
        <source>New Theme</source>
        <translation>Neues Thema</translation>
    </message>
    <message>
        <source>New layer</source>
        <translation>Neuer Layer</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>New map - Orvane</source>
        <translation>Neue Karte - Orvane</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>No layer here.</source>
        <translation>Hier ist kein Layer.</translation>
    </message>
    <message>
        <source>No layer of this map is visible.</source>
        <translation>Kein Layer dieser Karte ist sichtbar.</translation>
    </message>
    <message>
        <source>No maps yet</source>
        <translation>Noch keine Karten</translation>
    </message>
    <message>
        <source>No problems were found in &quot;%1&quot;.</source>
        <translation>In „%1“ wurden keine Probleme gefunden.</translation>
    </message>
    <message>
        <source>No selectable feature in the rectangle.</source>
        <translation>Kein auswählbares Objekt im Rechteck.</translation>
    </message>
    <message>
        <source>No themes yet</source>
        <translation>Noch keine Themen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>None of the missing files is in &quot;%1&quot;.</source>
        <translation>Keine der fehlenden Dateien liegt in „%1“.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>noch nicht gezählt</translation>
    </message>
    <message>
        <source>not in the scheme</source>
        <translation>nicht im Schema</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Nothing but the map, up to the edges of the page.</source>
        <translation>Nur die Karte, bis an den Rand der Seite.</translation>
    </message>
    <message>
        <source>Nothing was repaired because the repair was not finished within %1 seconds.</source>
        <translation>Nichts wurde repariert, weil die Reparatur in %1 Sekunden nicht fertig wurde.</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Zahl:</translation>
    </message>
    <message>
        <source>One statement at a time can be run on &quot;^1&quot;.</source>
        <translation>In „^1“ kann jeweils nur eine Anweisung ausgeführt werden.</translation>
    </message>
    <message>
        <source>Only a query can be opened for reading on &quot;^1&quot;.</source>
        <translation>In „^1“ kann nur eine Abfrage zum Lesen geöffnet werden.</translation>
    </message>
    <message>
        <source>Open &amp;Data...</source>
        <translation>&amp;Daten öffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open Data</source>
        <translation>Daten öffnen</translation>
    </message>
    <message>
        <source>Open Map</source>
        <translation>Karte öffnen</translation>
    </message>
    <message>
        <source>Open Map Data</source>
        <translation>Öffnen von Kartendaten</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open a map file</source>
        <translation>Eine Kartendatei öffnen</translation>
    </message>
    <message>
        <source>Open the layer control at startup.</source>
        <translation>Die Layersteuerung beim Start öffnen.</translation>
    </message>
    <message>
        <source>Opening map data</source>
        <translation>Kartendaten werden geöffnet</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Orvane, a small desktop map program.

These commands run without a window; each has its own --help:
  orvane MAP --export FILE     draw a map as PDF, SVG or PNG
  orvane import DATA --to MAP  add data to a map
  orvane check MAP             check a map for problems
  orvane list MAP              list the layers of a map
  orvane copy MAP NEW          copy a map, also to or from a server
  orvane share PLACE           choose who may use a map on a server</source>
        <translation>Orvane, ein kleines Kartenprogramm.

Diese Befehle laufen ohne Fenster und haben jeweils ein eigenes --help:
  orvane MAP --export FILE     eine Karte als PDF, SVG oder PNG zeichnen
  orvane import DATA --to MAP  Daten zu einer Karte hinzufügen
  orvane check MAP             eine Karte auf Probleme prüfen
  orvane list MAP              die Layer einer Karte auflisten
  orvane copy MAP NEW          eine Karte kopieren, auch auf einen oder von einem Server
  orvane share PLACE           festlegen, wer eine Karte auf einem Server nutzen darf</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>Nur Umriss</translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation>Muster %1</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Pixels: %1</source>
        <translation>Pixel: %1</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>Bitte geben Sie einen Namen ein, der nicht leer ist, oder brechen Sie ab.</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Print Map</source>
        <translation>Karte drucken</translation>
    </message>
    <message>
        <source>Print the map, with a preview</source>
        <translation>Die Karte drucken, mit Vorschau</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2.</source>
        <translation>QGIS kann das für den Layer „%1“ nicht setzen: %2.</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2. Other layers with settings that could not be set: %3.</source>
        <translation>QGIS kann das für den Layer „%1“ nicht setzen: %2. Weitere Layer mit Einstellungen, die nicht gesetzt werden konnten: %3.</translation>
    </message>
    <message>
        <source>Quit Orvane</source>
        <translation>Orvane beenden</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot; was given up because it does not end.</source>
        <translation>Das Lesen von „%1“ wurde aufgegeben, weil es nicht endet.</translation>
    </message>
    <message>
        <source>Reading attributes</source>
        <translation>Attribute werden gelesen</translation>
    </message>
    <message>
        <source>Reading map data</source>
        <translation>Kartendaten werden gelesen</translation>
    </message>
    <message>
        <source>Reading the map</source>
        <translation>Karte wird gelesen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Redo Layer Change</source>
        <translation>Änderung an Layern wiederholen</translation>
    </message>
    <message>
        <source>Redo the last undone change</source>
        <translation>Die zuletzt rückgängig gemachte Änderung wiederholen</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>Umbenennen von „%1“</translation>
    </message>
    <message>
        <source>Rename Group &quot;%1&quot;</source>
        <translation>Umbenennen der Gruppe „%1“</translation>
    </message>
    <message>
        <source>Rename Scheme</source>
        <translation>Schema umbenennen</translation>
    </message>
    <message>
        <source>Rename Scheme &quot;%1&quot;</source>
        <translation>Umbenennen des Schemas „%1“</translation>
    </message>
    <message>
        <source>Repair what can be repaired.</source>
        <translation>Reparieren, was sich reparieren lässt.</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Revert Scheme</source>
        <translation>Zum gespeicherten Schema zurück</translation>
    </message>
    <message>
        <source>Revert the layers to the values saved in the scheme &quot;%1&quot;?</source>
        <translation>Die Layer auf die im Schema „%1“ gespeicherten Werte zurücksetzen?</translation>
    </message>
    <message>
        <source>Rows of &quot;%1&quot; that refer to missing rows of &quot;%2&quot;: %3.</source>
        <translation>Zeilen von „%1“, die auf fehlende Zeilen von „%2“ verweisen: %3.</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; can be sought with &quot;=&quot; only, not with &quot;^2&quot;.</source>
        <translation>Zeilen von „^1“ können nur mit „=“ gesucht werden, nicht mit „^2“.</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; were used after they were closed.</source>
        <translation>Zeilen von „^1“ wurden nach dem Schließen verwendet.</translation>
    </message>
    <message>
        <source>S&amp;witch to It</source>
        <translation>&amp;Dorthin wechseln</translation>
    </message>
    <message>
        <source>Save Schemes for New Maps</source>
        <translation>Speichern der Schemas für neue Karten</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Maßstäbe</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Schemes made of map themes: %1</source>
        <translation>Aus Kartenthemen erzeugte Schemas: %1</translation>
    </message>
    <message>
        <source>selectable</source>
        <translation>auswählbar</translation>
    </message>
    <message>
        <source>Show the layer control inside this window</source>
        <translation>Die Layersteuerung in diesem Fenster anzeigen</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Auswählbar</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
    <message>
        <source>snap required</source>
        <translation>Fang erforderlich</translation>
    </message>
    <message>
        <source>Snap required</source>
        <translation>Fang erforderlich</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Vollfläche</translation>
    </message>
    <message>
        <source>Solid line</source>
        <translation>Durchgezogene Linie</translation>
    </message>
    <message>
        <source>style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Save Map As</source>
        <translation>Karte speichern unter</translation>
    </message>
    <message>
        <source>Save Scheme</source>
        <translation>Schema speichern</translation>
    </message>
    <message>
        <source>Save Scheme &quot;%1&quot;</source>
        <translation>Speichern des Schemas „%1“</translation>
    </message>
    <message>
        <source>Save the current layer settings to the scheme &quot;%1&quot;?</source>
        <translation>Die aktuellen Einstellungen der Layer im Schema „%1“ speichern?</translation>
    </message>
    <message>
        <source>Save the map to another file and continue with that file</source>
        <translation>Die Karte in einer anderen Datei speichern und damit weiterarbeiten</translation>
    </message>
    <message>
        <source>Save this map before closing it?</source>
        <translation>Diese Karte vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>Scale &amp;bar</source>
        <translation>Maßsta&amp;bsleiste</translation>
    </message>
    <message>
        <source>Scale 1:</source>
        <translation>Maßstab 1:</translation>
    </message>
    <message>
        <source>Scheme: %1</source>
        <translation>Schema: %1</translation>
    </message>
    <message>
        <source>Scheme: %1 *</source>
        <translation>Schema: %1 *</translation>
    </message>
    <message>
        <source>Search a folder for the missing data files of the map</source>
        <translation>Einen Ordner nach den fehlenden Datendateien der Karte durchsuchen</translation>
    </message>
    <message>
        <source>Select features of selectable layers by a click or a rectangle; Ctrl adds</source>
        <translation>Objekte auswählbarer Layer durch Klick oder Rechteck auswählen; Strg fügt hinzu</translation>
    </message>
    <message>
        <source>Selected features: %1</source>
        <translation>Ausgewählte Objekte: %1</translation>
    </message>
    <message>
        <source>Show and edit layers, groups and schemes</source>
        <translation>Layer, Gruppen und Schemas zeigen und bearbeiten</translation>
    </message>
    <message>
        <source>Show or hide the panel with the attributes of identified features</source>
        <translation>Das Fenster mit den Attributen abgefragter Objekte zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Show the attributes of features of enquirable layers</source>
        <translation>Die Attribute von Objekten abfragbarer Layer zeigen</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Show the whole map</source>
        <translation>Die ganze Karte zeigen</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Darstellung:</translation>
    </message>
    <message>
        <source>Switch Scheme</source>
        <translation>Schema wechseln</translation>
    </message>
    <message>
        <source>Temporary scratch layer</source>
        <translation>Temporärer Layer</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>&amp;Nach:</translation>
    </message>
    <message>
        <source>Taking Over Values</source>
        <translation>Übernahme der Werte</translation>
    </message>
    <message>
        <source>The changes cannot be kept for undoing in the folder &quot;^1&quot;: ^2.</source>
        <translation>Die Änderungen können nicht zum Rückgängigmachen im Ordner „^1“ aufbewahrt werden: ^2.</translation>
    </message>
    <message>
        <source>The changes to &quot;^1&quot; were undone after an error; begin them again.</source>
        <translation>Die Änderungen an „^1“ wurden nach einem Fehler zurückgenommen; beginnen Sie erneut.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; cannot be written.</source>
        <translation>Die Datendatei „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; is missing.</source>
        <translation>Die Datendatei „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The data of this layer cannot be read.</source>
        <translation>Die Daten dieses Layers können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The feature was changed by another user or program and was not moved.</source>
        <translation>Das Objekt wurde von einem anderen Benutzer oder Programm geändert und nicht verschoben.</translation>
    </message>
    <message>
        <source>The file to export must end in .pdf, .svg or .png.</source>
        <translation>Die Exportdatei muss auf .pdf, .svg oder .png enden.</translation>
    </message>
    <message>
        <source>The file to write; its extension .pdf, .svg or .png sets the format.</source>
        <translation>Die zu schreibende Datei; ihre Endung .pdf, .svg oder .png bestimmt das Format.</translation>
    </message>
    <message>
        <source>The last change was stored, but it cannot be undone: %1</source>
        <translation>Die letzte Änderung wurde gespeichert, kann aber nicht rückgängig gemacht werden: %1</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>Das letzte Layerschema kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; was removed.</source>
        <translation>Der Layer „%1“ wurde entfernt.</translation>
    </message>
    <message>
        <source>The layer control holds changes that are not applied yet. Apply or cancel them first.</source>
        <translation>In der Layersteuerung stehen Änderungen, die noch nicht angewendet sind. Wenden Sie sie zuerst an, oder verwerfen Sie sie.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; has no table &quot;^2&quot; to open.</source>
        <translation>Die Layerdatenbank „^1“ hat keine Tabelle „^2“.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; refused an operation: ^2</source>
        <translation>Die Layerdatenbank „^1“ hat einen Vorgang abgelehnt: ^2</translation>
    </message>
    <message>
        <source>The layer schemes of &quot;%1&quot; were written by a newer program and cannot be read.</source>
        <translation>Die Layerschemas von „%1“ wurden von einem neueren Programm geschrieben und können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The layer schemes of this project are damaged and cannot be read.</source>
        <translation>Die Layerschemas dieses Projekts sind beschädigt und können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The layer schemes of this project were written by a newer program and cannot be read.</source>
        <translation>Die Layerschemas dieses Projekts wurden von einem neueren Programm geschrieben und können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The layers match the scheme &quot;%1&quot;.</source>
        <translation>Die Layer stimmen mit dem Schema „%1“ überein.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open in another window or program. Open it here too?</source>
        <translation>Die Karte „%1“ ist in einem anderen Fenster oder Programm geöffnet. Soll sie auch hier geöffnet werden?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; no longer exists. It was removed from the list.</source>
        <translation>Die Karte „%1“ ist nicht mehr vorhanden. Sie wurde aus der Liste entfernt.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created: ^2</source>
        <translation>Die Karte „^1“ kann nicht angelegt werden: ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened because &quot;^2&quot; is not an ordinary file.</source>
        <translation>Die Karte „^1“ kann nicht geöffnet werden, weil „^2“ keine gewöhnliche Datei ist.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened: ^2</source>
        <translation>Die Karte „^1“ kann nicht geöffnet werden: ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; does not exist.</source>
        <translation>Die Karte „^1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is damaged. Use an earlier copy of it.</source>
        <translation>Die Karte „^1“ ist beschädigt. Verwenden Sie eine früher gesicherte Kopie.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is in use by another program. Try again in a moment.</source>
        <translation>Die Karte „^1“ wird von einem anderen Programm verwendet. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is a view.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: „^2“ ist eine Sicht.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is not an ordinary table.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: „^2“ ist keine gewöhnliche Tabelle.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains the trigger &quot;^2&quot;.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Sie enthält den Trigger „^2“.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the column &quot;^2&quot; is computed.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Die Spalte „^2“ wird berechnet.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the index &quot;^2&quot; is computed.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Der Index „^2“ wird berechnet.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; has a condition.</source>
        <translation>Die Karte „^1“ ist fehlerhaft: Die Tabelle „^2“ hat eine Bedingung.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is on a server. This program was built without PostgreSQL and cannot reach it.</source>
        <translation>Die Karte „^1“ liegt auf einem Server. Dieses Programm wurde ohne PostgreSQL gebaut und kann ihn nicht erreichen.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is read-only and cannot be changed.</source>
        <translation>Die Karte „^1“ ist schreibgeschützt und kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was not opened because checking it takes too long.</source>
        <translation>Die Karte „^1“ wurde nicht geöffnet, weil ihre Prüfung zu lange dauert.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was written by a newer version of this program.</source>
        <translation>Die Karte „^1“ wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>The map as it is</source>
        <translation>Die Karte, wie sie ist</translation>
    </message>
    <message>
        <source>The map file &quot;%1&quot; was moved or deleted. What you change is kept only when you save the map under another name.</source>
        <translation>Die Kartendatei „%1“ wurde verschoben oder gelöscht. Änderungen bleiben nur erhalten, wenn Sie die Karte unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>The map file is damaged: %1.</source>
        <translation>Die Kartendatei ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>The map to add to: a file, or a place on a server; it is made when there is none.</source>
        <translation>Die Karte, der etwas hinzugefügt wird: eine Datei oder ein Ort auf einem Server; sie wird angelegt, wenn es sie nicht gibt.</translation>
    </message>
    <message>
        <source>The map to open: a file, or a place on a server.</source>
        <translation>Die zu öffnende Karte: eine Datei oder ein Ort auf einem Server.</translation>
    </message>
    <message>
        <source>The map file was not checked to its end within %1 seconds. It may be very large, or made to keep programs busy. --time-limit sets another limit.</source>
        <translation>Die Kartendatei wurde in %1 Sekunden nicht bis zum Ende geprüft. Sie ist vielleicht sehr groß oder so gemacht, dass sie Programme aufhält. --time-limit setzt eine andere Grenze.</translation>
    </message>
    <message>
        <source>The map has no features of these layers.</source>
        <translation>Die Karte hat keine Objekte dieser Layer.</translation>
    </message>
    <message>
        <source>The map theme &quot;%1&quot; already exists. Replace it with the scheme?</source>
        <translation>Das Kartenthema „%1“ ist bereits vorhanden. Soll es durch das Schema ersetzt werden?</translation>
    </message>
    <message>
        <source>The map was changed in another window and has been reloaded.</source>
        <translation>Die Karte wurde in einem anderen Fenster geändert und neu geladen.</translation>
    </message>
    <message>
        <source>The map was written to %1</source>
        <translation>Die Karte wurde nach %1 geschrieben</translation>
    </message>
    <message>
        <source>The operation on &quot;^1&quot; was cancelled.</source>
        <translation>Der Vorgang für „^1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The page cannot be painted.</source>
        <translation>Die Seite kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>the program must make a QApplication before it loads it</source>
        <translation>das Programm muss eine QApplication anlegen, bevor es sie lädt</translation>
    </message>
    <message>
        <source>The row to change is no longer in &quot;^1&quot;.</source>
        <translation>Die zu ändernde Zeile ist nicht mehr in „^1“.</translation>
    </message>
    <message>
        <source>The rows of a query on &quot;^1&quot; cannot be sought or edited.</source>
        <translation>Die Zeilen einer Abfrage von „^1“ können weder gesucht noch bearbeitet werden.</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; cannot be sought by the index &quot;^2&quot;.</source>
        <translation>Die aus „^1“ gelesenen Zeilen können nicht über den Index „^2“ gesucht werden.</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; have no column &quot;^2&quot;.</source>
        <translation>Die aus „^1“ gelesenen Zeilen haben keine Spalte „^2“.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; already exists. Replace it with the map theme?</source>
        <translation>Das Schema „%1“ ist bereits vorhanden. Soll es durch das Kartenthema ersetzt werden?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; already exists. Replace it with the one in the file?</source>
        <translation>Das Schema „%1“ ist bereits vorhanden. Soll es durch das Schema in der Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported as a map theme.</source>
        <translation>Das Schema „%1“ wurde als Kartenthema exportiert.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported.</source>
        <translation>Das Schema „%1“ wurde exportiert.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported. Layers that match: %2</source>
        <translation>Das Schema „%1“ wurde importiert. Passende Layer: %2</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported.</source>
        <translation>Das Schema „%1“ wurde importiert.</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be read. %2</source>
        <translation>Die Schemadatei „%1“ kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be written: %2.</source>
        <translation>Die Schemadatei „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The style editor component &quot;%1&quot; cannot be used: %2.</source>
        <translation>Die Stileditor-Komponente „%1“ kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>The style editor component takes no further texts.</source>
        <translation>Die Stileditor-Komponente nimmt keine weiteren Texte an.</translation>
    </message>
    <message>
        <source>The theme &quot;%1&quot; already exists. Replace its layers with the visible layers?</source>
        <translation>Das Thema „%1“ ist bereits vorhanden. Sollen seine Layer durch die sichtbaren Layer ersetzt werden?</translation>
    </message>
    <message>
        <source>The title. The default is the name of the map; &quot;&quot; for no title.</source>
        <translation>Der Titel. Voreinstellung: der Name der Karte; "" für keinen Titel.</translation>
    </message>
    <message>
        <source>The value &quot;%2&quot; of the layer &quot;%1&quot; is not a number.</source>
        <translation>Der Wert „%2“ des Layers „%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>Their data files stay. You can undo the deletion.</source>
        <translation>Ihre Datendateien bleiben. Das Löschen kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Their saved values will be removed from the layer schemes: %1.</source>
        <translation>Ihre gespeicherten Werte werden aus den Layerschemas entfernt: %1.</translation>
    </message>
    <message>
        <source>There are no patterns of kind %1.</source>
        <translation>Es gibt keine Muster der Art %1.</translation>
    </message>
    <message>
        <source>There are too many arguments.</source>
        <translation>Es sind zu viele Argumente angegeben.</translation>
    </message>
    <message>
        <source>There is a layer scheme named &quot;%1&quot; already.</source>
        <translation>Ein Layerschema namens „%1“ ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>There is no current row to read or edit in &quot;^1&quot;.</source>
        <translation>In „^1“ gibt es keine aktuelle Zeile zum Lesen oder Bearbeiten.</translation>
    </message>
    <message>
        <source>There is no fill pattern %1.</source>
        <translation>Es gibt kein Füllmuster %1.</translation>
    </message>
    <message>
        <source>there is no folder &quot;%1&quot;</source>
        <translation>es gibt keinen Ordner „%1“</translation>
    </message>
    <message>
        <source>There is no group with the ID %1.</source>
        <translation>Es gibt keine Gruppe mit der ID %1.</translation>
    </message>
    <message>
        <source>There is no layer scheme named &quot;%1&quot;.</source>
        <translation>Es gibt kein Layerschema namens „%1“.</translation>
    </message>
    <message>
        <source>There is no layer with the ID %1.</source>
        <translation>Es gibt keinen Layer mit der ID %1.</translation>
    </message>
    <message>
        <source>there is no room in the folder &quot;%1&quot;</source>
        <translation>im Ordner „%1“ ist nicht genug Speicherplatz</translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot; in these layers, which keep theirs: %2</source>
        <translation>Den Stil „%1“ gibt es in diesen Layern nicht, sie behalten ihren: %2</translation>
    </message>
    <message>
        <source>There is no transaction to commit in &quot;^1&quot;.</source>
        <translation>In „^1“ gibt es keine Transaktion, die abgeschlossen werden kann.</translation>
    </message>
    <message>
        <source>There is not enough disk space for the map &quot;^1&quot;.</source>
        <translation>Auf dem Datenträger ist nicht genug Speicherplatz für die Karte „^1“.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Es gibt nichts zu importieren.</translation>
    </message>
    <message>
        <source>There was not enough memory to record the changes to &quot;^1&quot;; they cannot be undone.</source>
        <translation>Der Arbeitsspeicher reichte nicht, um die Änderungen an „^1“ festzuhalten; sie lassen sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>They will be removed from their groups: %1.</source>
        <translation>Sie werden aus ihren Gruppen entfernt: %1.</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>Dünnste Linie</translation>
    </message>
    <message>
        <source>This map is empty. Choose File &gt; Open Data..., or drop data files here.</source>
        <translation>Diese Karte ist leer. Wählen Sie Datei &gt; Daten öffnen... oder ziehen Sie Datendateien hierher.</translation>
    </message>
    <message>
        <source>This program has no startup database.</source>
        <translation>Dieses Programm hat keine Startdatenbank.</translation>
    </message>
    <message>
        <source>This project has no map themes.</source>
        <translation>Dieses Projekt hat keine Kartenthemen.</translation>
    </message>
    <message>
        <source>This step is no longer possible, because layers that it changed were changed since by another program. Nothing was changed: %1</source>
        <translation>Dieser Schritt ist nicht mehr möglich, weil Layer, die er geändert hat, seither von einem anderen Programm geändert wurden. Es wurde nichts geändert: %1</translation>
    </message>
    <message>
        <source>This step is no longer possible, because the map theme was changed since. Nothing was changed: %1</source>
        <translation>Dieser Schritt ist nicht mehr möglich, weil das Kartenthema seither geändert wurde. Es wurde nichts geändert: %1</translation>
    </message>
    <message>
        <source>Title of the map</source>
        <translation>Titel der Karte</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Undo &amp;Everything Since the Layer Control Opened</source>
        <translation>&amp;Alles seit dem Öffnen der Layersteuerung rückgängig machen</translation>
    </message>
    <message>
        <source>Undo &amp;Everything Since the Layer Control Opened (%1)</source>
        <translation>&amp;Alles seit dem Öffnen der Layersteuerung rückgängig machen (%1)</translation>
    </message>
    <message>
        <source>Undo All %1 St&amp;eps That Are Kept</source>
        <translation>Alle %1 noch vorhandenen &amp;Schritte rückgängig machen</translation>
    </message>
    <message>
        <source>Undo all changes since the layer control was opened, as one step</source>
        <translation>Alle Änderungen seit dem Öffnen der Layersteuerung in einem Schritt rückgängig machen</translation>
    </message>
    <message>
        <source>Undo Layer Change</source>
        <translation>Änderung an Layern rückgängig machen</translation>
    </message>
    <message>
        <source>Undo the last change to layers, groups or schemes</source>
        <translation>Die letzte Änderung an Layern, Gruppen oder Schemas rückgängig machen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Use portrait orientation.</source>
        <translation>Hochformat verwenden.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>this program has no driver for %1</source>
        <translation>dieses Programm hat keinen Treiber für %1</translation>
    </message>
    <message>
        <source>visible</source>
        <translation>sichtbar</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; Holds</source>
        <translation>Inhalt von „%1“</translation>
    </message>
    <message>
        <source>What is added gets the present values of the layers; what is taken away is lost.</source>
        <translation>Was hinzukommt, erhält die jetzigen Werte der Layer; was wegfällt, geht verloren.</translation>
    </message>
    <message>
        <source>What you edited was changed elsewhere meanwhile: %1</source>
        <translation>Was Sie bearbeitet haben, wurde inzwischen anderswo geändert: %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Words of layers and properties</source>
        <translation>Wörter aus Layern und Eigenschaften</translation>
    </message>
    <message>
        <source>Write each call between the map and the layer control to FILE.</source>
        <translation>Jeden Aufruf zwischen Karte und Layersteuerung in FILE schreiben.</translation>
    </message>
    <message>
        <source>Write the map as PDF, SVG or PNG</source>
        <translation>Die Karte als PDF, SVG oder PNG schreiben</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Karte vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Karte verkleinern</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>it has no attribute named %1</source>
        <translation>es gibt darin kein Attribut namens %1</translation>
    </message>
    <message>
        <source>it has no layer named %1</source>
        <translation>es gibt darin keinen Layer namens %1</translation>
    </message>
    <message>
        <source>it is no style editor component (&quot;%1&quot; is missing)</source>
        <translation>sie ist keine Stileditor-Komponente („%1“ fehlt)</translation>
    </message>
    <message>
        <source>it is too large for this computer's memory</source>
        <translation>es ist zu groß für den Speicher dieses Rechners</translation>
    </message>
    <message>
        <source>it made no entry object</source>
        <translation>sie hat kein Einstiegsobjekt erzeugt</translation>
    </message>
    <message>
        <source>it uses version %1 of the interface, this program uses version %2</source>
        <translation>sie verwendet Version %1 der Schnittstelle, dieses Programm Version %2</translation>
    </message>
    <message>
        <source>it was built with Qt %1, this program with Qt %2</source>
        <translation>sie wurde mit Qt %1 erstellt, dieses Programm mit Qt %2</translation>
    </message>
    <message>
        <source>its format is read only</source>
        <translation>ihr Format kann nur gelesen werden</translation>
    </message>
    <message>
        <source>its name must end in .pdf, .svg or .png</source>
        <translation>ihr Name muss auf .pdf, .svg oder .png enden</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>outside the projection</source>
        <translation>außerhalb der Projektion</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>the feature is no longer there</source>
        <translation>das Objekt ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>the file is read only</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the new position is outside the coordinate system</source>
        <translation>die neue Position liegt außerhalb des Koordinatensystems</translation>
    </message>
    <message>
        <source>Zoom to Layer</source>
        <translation>Auf Layer zoomen</translation>
    </message>
</context>
</TS>
