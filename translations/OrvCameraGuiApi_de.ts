<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessReason</name>
    <message>
        <source>not implemented by the camera</source>
        <translation>in der Kamera nicht vorhanden</translation>
    </message>
    <message>
        <source>not implemented, says %1</source>
        <translation>laut %1 nicht vorhanden</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>zurzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>not available now because of %1</source>
        <translation>zurzeit wegen %1 nicht verfügbar</translation>
    </message>
    <message>
        <source>locked by %1</source>
        <translation>von %1 gesperrt</translation>
    </message>
    <message>
        <source>the acquisition is running (%1)</source>
        <translation>die Aufnahme läuft (%1)</translation>
    </message>
    <message>
        <source>the camera lets it be read only</source>
        <translation>die Kamera lässt es nur lesen</translation>
    </message>
    <message>
        <source>&lt;i&gt;Not writable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Nicht änderbar:&lt;/i&gt; %1</translation>
    </message>
</context>
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>EntryGuard</name>
    <message>
        <source>Enter a number from %1 to %2.</source>
        <translation>Geben Sie eine Zahl von %1 bis %2 ein.</translation>
    </message>
</context>
<context>
    <name>FeatureMenu</name>
    <message>
        <source>Copy &amp;GenICam Name</source>
        <translation>&amp;GenICam-Namen kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>&amp;Zeile kopieren</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>&amp;Neu lesen</translation>
    </message>
    <message>
        <source>&amp;Execute</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>&amp;Favorit</translation>
    </message>
    <message>
        <source>Go to &amp;Selector</source>
        <translation>Zum &amp;Selektor</translation>
    </message>
    <message>
        <source>Show &amp;Only This Category</source>
        <translation>Nur diese &amp;Kategorie zeigen</translation>
    </message>
    <message>
        <source>Show A&amp;ll Categories</source>
        <translation>A&amp;lle Kategorien zeigen</translation>
    </message>
    <message>
        <source>Go to Selecte&amp;d Feature</source>
        <translation>Zu&amp;m ausgewählten Merkmal</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Favor&amp;ites Only</source>
        <translation>Nur Favor&amp;iten</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>Nur Geän&amp;derte</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Case Sensitive</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>Nur ganze Wörter</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find Features</source>
        <translation>Merkmale suchen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Vorheriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam-Fehler</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;Wert nicht verfügbar&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;Wert nicht lesbar&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;Grenzen&lt;/i&gt;: Min.: %1, Max.: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Merkmal:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Beschreibung:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Speicherbar als Einstellung:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Zwischenspeicherung:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Selektoren:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Typ:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Zeichenkette</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Schrittweite&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Gültige Werte&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;Einträge der Aufzählung&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>NoCache</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>WriteThrough</source>
        <translation>Durchschreiben</translation>
    </message>
    <message>
        <source>WriteAround</source>
        <translation>Umschreiben</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Collapse All</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>Nach dem Namen des Merkmals filtern.
Platzhalter sind möglich.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>Sichtbarkeit:</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>Stufe, bis zu der Merkmale sichtbar sind</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Einsteiger</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Experte</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>Fehler anzeigen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Sichtbarkeit</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Description of the feature</source>
        <translation>Beschreibung des Merkmals</translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>ReadWrite</source>
        <translation>Lesen und Schreiben</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>Nur Lesen</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>KEIN ZUGRIFF</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>Falsches IP-Subnetz</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>Geräteinformation</translation>
    </message>
    <message>
        <source>Device Firmware Version:</source>
        <translation>Firmware-Version des Geräts:</translation>
    </message>
    <message>
        <source>Device Model Name:</source>
        <translation>Gerätemodell:</translation>
    </message>
    <message>
        <source>Device Manufacturer Info:</source>
        <translation>Herstellerangaben:</translation>
    </message>
    <message>
        <source>Device Serial Number:</source>
        <translation>Seriennummer des Geräts:</translation>
    </message>
    <message>
        <source>Device User Defined Name:</source>
        <translation>Benutzerdefinierter Gerätename:</translation>
    </message>
    <message>
        <source>Device Family Name:</source>
        <translation>Gerätefamilie:</translation>
    </message>
    <message>
        <source>Device Vendor Name:</source>
        <translation>Gerätehersteller:</translation>
    </message>
    <message>
        <source>Device Version:</source>
        <translation>Geräteversion:</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Firmware Image:</source>
        <translation>Firmware-Abbild:</translation>
    </message>
    <message>
        <source>CustomerID:</source>
        <translation>Kundenkennung:</translation>
    </message>
    <message>
        <source>Xml Version:</source>
        <translation>XML-Version:</translation>
    </message>
    <message>
        <source>RgsID:</source>
        <translation>RGS-Kennung:</translation>
    </message>
    <message>
        <source>FpgaID:</source>
        <translation>FPGA-Kennung:</translation>
    </message>
    <message>
        <source>EpcsID:</source>
        <translation>EPCS-Kennung:</translation>
    </message>
    <message>
        <source>Sensor Type:</source>
        <translation>Sensortyp:</translation>
    </message>
    <message>
        <source>FamilyID:</source>
        <translation>Familienkennung:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>Nachführgeschwindigkeit</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>Manuelle Weißabgleich-Koeff.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>Eins</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>Koeff. Rot:</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>Koeff. Grün:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>Koeff. Blau:</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Tracking speed</source>
        <translation>Nachführgeschwindigkeit</translation>
    </message>
    <message>
        <source>Red coefficient</source>
        <translation>Koeffizient für Rot</translation>
    </message>
    <message>
        <source>Set red to unity</source>
        <translation>Rot auf eins setzen</translation>
    </message>
    <message>
        <source>Green coefficient</source>
        <translation>Koeffizient für Grün</translation>
    </message>
    <message>
        <source>Set green to unity</source>
        <translation>Grün auf eins setzen</translation>
    </message>
    <message>
        <source>Blue coefficient</source>
        <translation>Koeffizient für Blau</translation>
    </message>
    <message>
        <source>Set blue to unity</source>
        <translation>Blau auf eins setzen</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Frame Mode:</source>
        <translation>Bildmodus:</translation>
    </message>
    <message>
        <source>Frames in a Row:</source>
        <translation>Bilder in Folge:</translation>
    </message>
    <message>
        <source>A:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>B:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Shutter Mode:</source>
        <translation>Verschlussmodus:</translation>
    </message>
    <message>
        <source>Bit Depth:</source>
        <translation>Bittiefe:</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Clocks [pclk]:</source>
        <translation>Takte [pclk]:</translation>
    </message>
    <message>
        <source>Frame Period</source>
        <translation>Bildperiode</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Period [μs]:</source>
        <translation>Periode [μs]:</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>Analoge Verstärkung:</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bildbereich</translation>
    </message>
    <message>
        <source>Size of the Image:</source>
        <translation>Größe des Bilds:</translation>
    </message>
    <message>
        <source>Decimation</source>
        <translation>Dezimierung</translation>
    </message>
    <message>
        <source>Subsampling M:</source>
        <translation>Unterabtastung M:</translation>
    </message>
    <message>
        <source>P:</source>
        <translation>P:</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>Mittelung:</translation>
    </message>
    <message>
        <source>Wide Dynamic Range</source>
        <translation>Erweiterter Dynamikbereich</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Level 1:</source>
        <translation>Pegel 1:</translation>
    </message>
    <message>
        <source>Exposure 1:</source>
        <translation>Belichtung 1:</translation>
    </message>
    <message>
        <source>Level 2:</source>
        <translation>Pegel 2:</translation>
    </message>
    <message>
        <source>Exposure 2:</source>
        <translation>Belichtung 2:</translation>
    </message>
    <message>
        <source>Level 3:</source>
        <translation>Pegel 3:</translation>
    </message>
    <message>
        <source>Exposure 3:</source>
        <translation>Belichtung 3:</translation>
    </message>
    <message>
        <source>Frame mode</source>
        <translation>Bildmodus</translation>
    </message>
    <message>
        <source>Number of frames A in a row</source>
        <translation>Anzahl der Bilder A in Folge</translation>
    </message>
    <message>
        <source>Number of frames B in a row</source>
        <translation>Anzahl der Bilder B in Folge</translation>
    </message>
    <message>
        <source>Dual video line time in pixel clocks</source>
        <translation>Zeilenzeit bei Doppelbild in Pixeltakten</translation>
    </message>
    <message>
        <source>Exposure time in microseconds</source>
        <translation>Belichtungszeit in Mikrosekunden</translation>
    </message>
    <message>
        <source>Exposure lines</source>
        <translation>Belichtung in Zeilen</translation>
    </message>
    <message>
        <source>Exposure pixel clocks</source>
        <translation>Belichtung in Pixeltakten</translation>
    </message>
    <message>
        <source>Line time in pixel clocks</source>
        <translation>Zeilenzeit in Pixeltakten</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>Feste Bildperiode</translation>
    </message>
    <message>
        <source>Frame period in microseconds</source>
        <translation>Bildperiode in Mikrosekunden</translation>
    </message>
    <message>
        <source>Digital gain</source>
        <translation>Digitale Verstärkung</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Schwarzwert</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Horizontaler Versatz</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Vertikaler Versatz</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Subsampling M</source>
        <translation>Unterabtastung M</translation>
    </message>
    <message>
        <source>Subsampling P</source>
        <translation>Unterabtastung P</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>Mittelung</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>Erweiterter Dynamikbereich</translation>
    </message>
    <message>
        <source>Level 1 of the wide dynamic range</source>
        <translation>Pegel 1 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Exposure 1 of the wide dynamic range</source>
        <translation>Belichtung 1 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Level 2 of the wide dynamic range</source>
        <translation>Pegel 2 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Exposure 2 of the wide dynamic range</source>
        <translation>Belichtung 2 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Level 3 of the wide dynamic range</source>
        <translation>Pegel 3 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Exposure 3 of the wide dynamic range</source>
        <translation>Belichtung 3 des erweiterten Dynamikbereichs</translation>
    </message>
    <message>
        <source>Shutter mode</source>
        <translation>Verschlussmodus</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>Belichtungssteuerung</translation>
    </message>
    <message>
        <source>Analog gain</source>
        <translation>Analoge Verstärkung</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>Kamerakonfiguration</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>Kamerainformation</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>PxL</source>
        <translation>P×Z</translation>
    </message>
    <message>
        <source>FPS</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>B/s</translation>
    </message>
    <message>
        <source>FTM</source>
        <translation>Bildzeit</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>TMP</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>Datenausgang</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Size of frame A</source>
        <translation>Größe von Bild A</translation>
    </message>
    <message>
        <source>Size of frame B</source>
        <translation>Größe von Bild B</translation>
    </message>
    <message>
        <source>Frames per second of frame A</source>
        <translation>Bildrate von Bild A</translation>
    </message>
    <message>
        <source>Frames per second of frame B</source>
        <translation>Bildrate von Bild B</translation>
    </message>
    <message>
        <source>Frame time of frame A</source>
        <translation>Bildzeit von Bild A</translation>
    </message>
    <message>
        <source>Frame time of frame B</source>
        <translation>Bildzeit von Bild B</translation>
    </message>
    <message>
        <source>Exposure time of frame A</source>
        <translation>Belichtungszeit von Bild A</translation>
    </message>
    <message>
        <source>Exposure time of frame B</source>
        <translation>Belichtungszeit von Bild B</translation>
    </message>
    <message>
        <source>Temperature of the camera</source>
        <translation>Temperatur der Kamera</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>Datenausgang</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera-Link-Ausgang</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>Taps:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>Tiefe:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>Pixeltyp</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>Pixelformat:</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT-Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>Bildspiegelung</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>Testmodus</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>Testbild:</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Enable the look-up table</source>
        <translation>Umsetzungstabelle aktivieren</translation>
    </message>
    <message>
        <source>Look-up table</source>
        <translation>Umsetzungstabelle</translation>
    </message>
    <message>
        <source>Defect pixel correction</source>
        <translation>Korrektur defekter Pixel</translation>
    </message>
    <message>
        <source>Dynamic threshold of the defect pixel correction</source>
        <translation>Dynamische Schwelle der Korrektur defekter Pixel</translation>
    </message>
    <message>
        <source>Hot pixel correction</source>
        <translation>Hotpixel-Korrektur</translation>
    </message>
    <message>
        <source>Dynamic threshold of the hot pixel correction</source>
        <translation>Dynamische Schwelle der Hotpixel-Korrektur</translation>
    </message>
    <message>
        <source>Horizontal mirror</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Vertical mirror</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Test pattern</source>
        <translation>Testbild</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>Pulssteuerung</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>Interner Pulsgenerator</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Period [%1s]:</source>
        <translation>Periode [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>Breite [%1s]:</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>Verzögerung [%1s]:</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>Frequenz [Hz]:</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>Anzahl der Pulse</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Number of pulses</source>
        <translation>Anzahl der Pulse</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Granularity</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Period in microseconds</source>
        <translation>Periode in Mikrosekunden</translation>
    </message>
    <message>
        <source>Width in microseconds</source>
        <translation>Breite in Mikrosekunden</translation>
    </message>
    <message>
        <source>Delay in microseconds</source>
        <translation>Verzögerung in Mikrosekunden</translation>
    </message>
    <message>
        <source>Frequency in hertz</source>
        <translation>Frequenz in Hertz</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>Blitzsteuerung</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>Blitz 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>Bezug:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>Blitz 2</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Ausg. 1:</translation>
    </message>
    <message>
        <source>Polarity of output 1</source>
        <translation>Polarität von Ausgang 1</translation>
    </message>
    <message>
        <source>Signal on output 1</source>
        <translation>Signal an Ausgang 1</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Ausg. 2:</translation>
    </message>
    <message>
        <source>Polarity of output 2</source>
        <translation>Polarität von Ausgang 2</translation>
    </message>
    <message>
        <source>Signal on output 2</source>
        <translation>Signal an Ausgang 2</translation>
    </message>
    <message>
        <source>Mode of strobe 1</source>
        <translation>Modus von Blitz 1</translation>
    </message>
    <message>
        <source>Reference of strobe 1</source>
        <translation>Bezug von Blitz 1</translation>
    </message>
    <message>
        <source>Delay of strobe 1 in microseconds</source>
        <translation>Verzögerung von Blitz 1 in Mikrosekunden</translation>
    </message>
    <message>
        <source>Width of strobe 1 in microseconds</source>
        <translation>Breite von Blitz 1 in Mikrosekunden</translation>
    </message>
    <message>
        <source>Mode of strobe 2</source>
        <translation>Modus von Blitz 2</translation>
    </message>
    <message>
        <source>Reference of strobe 2</source>
        <translation>Bezug von Blitz 2</translation>
    </message>
    <message>
        <source>Delay of strobe 2 in microseconds</source>
        <translation>Verzögerung von Blitz 2 in Mikrosekunden</translation>
    </message>
    <message>
        <source>Width of strobe 2 in microseconds</source>
        <translation>Breite von Blitz 2 in Mikrosekunden</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>Triggersteuerung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>Triggerquelle:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>Flanke:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>Entprellung:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>Software-
Trigger</translation>
    </message>
    <message>
        <source>Enable the trigger</source>
        <translation>Trigger aktivieren</translation>
    </message>
    <message>
        <source>Trigger source</source>
        <translation>Triggerquelle</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Flanke</translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation>Entprellung</translation>
    </message>
    <message>
        <source>Software trigger</source>
        <translation>Software-Trigger</translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>Kamera auswählen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>&amp;Schnittstelle</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Give the camera an IP address of its network adapter&apos;s subnet</source>
        <translation>Der Kamera eine IP-Adresse aus dem Subnetz ihres Netzwerkadapters geben</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Look for cameras that come and go, once a second</source>
        <translation>Jede Sekunde nach Kameras suchen, die kommen und gehen</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Laufend suchen</translation>
    </message>
</context>
<context>
    <name>OrvGui::ControlWatch</name>
    <message>
        <source>Not taken. The camera&apos;s value cannot be read.</source>
        <translation>Nicht übernommen. Der Wert der Kamera kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Not taken. The camera has %1.</source>
        <translation>Nicht übernommen. Die Kamera hat %1.</translation>
    </message>
    <message>
        <source>The camera&apos;s value is %1.</source>
        <translation>Der Wert der Kamera ist %1.</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfig</name>
    <message>
        <source>Select a device</source>
        <translation>Gerät auswählen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Not read at present: the camera shows &quot;%1&quot;</source>
        <translation>Wird zurzeit nicht gelesen: Die Kamera zeigt „%1“</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigAboutDialog</name>
    <message>
        <source>Copyright %1 %2, the authors of OrvCameraGuiApi</source>
        <translation>Copyright %1 %2, die Autoren von OrvCameraGuiApi</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n. v.</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigFrameABDialog</name>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>Zeilenzeit bei
Doppelbild [pclk]:</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>Zeilenzeit [pclk]:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>Versatz X:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Versatz Y:</translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>Breite: </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>Digitale Verstärkung:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>Schwarzwert:</translation>
    </message>
    <message>
        <source>Exposure Time [%1s]:</source>
        <translation>Belichtungszeit [%1s]:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigMapper</name>
    <message>
        <source>Unknown code</source>
        <translation>Unbekannter Fehlercode</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>File read error</source>
        <translation>Fehler beim Lesen der Datei</translation>
    </message>
    <message>
        <source>Wrong configuration</source>
        <translation>Falsche Konfiguration</translation>
    </message>
    <message>
        <source>Invalid index</source>
        <translation>Ungültiger Index</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültiges Argument</translation>
    </message>
    <message>
        <source>Invalid state</source>
        <translation>Ungültiger Zustand</translation>
    </message>
    <message>
        <source>Flash erase error</source>
        <translation>Fehler beim Löschen des Flash-Speichers</translation>
    </message>
    <message>
        <source>GenICam: Generic error</source>
        <translation>GenICam: Allgemeiner Fehler</translation>
    </message>
    <message>
        <source>GenICam: Tree error</source>
        <translation>GenICam: Fehler im Baum</translation>
    </message>
    <message>
        <source>GenICam: Access error</source>
        <translation>GenICam: Zugriffsfehler</translation>
    </message>
    <message>
        <source>GenICam: Parameter type is invalid</source>
        <translation>GenICam: Ungültiger Parametertyp</translation>
    </message>
    <message>
        <source>GenICam: Parameter is out of range</source>
        <translation>GenICam: Parameter außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>GenICam: Unknown param</source>
        <translation>GenICam: Unbekannter Parameter</translation>
    </message>
    <message>
        <source>GenICam: Invalid argument</source>
        <translation>GenICam: Ungültiges Argument</translation>
    </message>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>Fehler bei der Arbeit mit dem Parameter „%1“!<byte value="xd"/>
Beschreibung: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigOutputDialog</name>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>Dyn. Schwelle:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigPulseDialog</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Pulses</source>
        <translation>Pulse</translation>
    </message>
    <message>
        <source>Pulses are generated</source>
        <translation>Pulse werden erzeugt</translation>
    </message>
    <message>
        <source>No pulses are generated</source>
        <translation>Es werden keine Pulse erzeugt</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigStrobeDialog</name>
    <message>
        <source>Both strobes count from the start of the readout</source>
        <translation>Beide Blitze zählen ab dem Beginn des Auslesens</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the readout, strobe 2 from that of the exposure</source>
        <translation>Blitz 1 zählt ab dem Beginn des Auslesens, Blitz 2 ab dem der Belichtung</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the exposure, strobe 2 from that of the readout</source>
        <translation>Blitz 1 zählt ab dem Beginn der Belichtung, Blitz 2 ab dem des Auslesens</translation>
    </message>
    <message>
        <source>Both strobes count from the start of the exposure</source>
        <translation>Beide Blitze zählen ab dem Beginn der Belichtung</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>Verzögerung [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>Breite [%1s]:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message>
        <source>Look for cameras once, while polling is off</source>
        <translation>Einmal nach Kameras suchen, solange nicht laufend gesucht wird</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>Warnung zur IP-Konfiguration</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>Die angegebene IP-Konfiguration ist nicht richtig; die Kamera ist womöglich nicht mehr auffindbar.
„OK“ verwirft die IP-Konfiguration, „Ignorieren“ bestätigt sie.</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>Die IP-Adresse kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvFeatureTreeTools</name>
    <message>
        <source>There is no feature &apos;%1&apos;.</source>
        <translation>Es gibt kein Merkmal „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not meant to be shown.</source>
        <translation>„%1“ ist nicht zum Anzeigen gedacht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is shown at the level %2.</source>
        <translation>„%1“ wird auf der Stufe %2 gezeigt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is hidden by the filter.</source>
        <translation>„%1“ ist vom Filter verdeckt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown.</source>
        <translation>„%1“ wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown: %2.</source>
        <translation>„%1“ wird nicht gezeigt: %2.</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvGenParamTreeView</name>
    <message>
        <source>Clear filter</source>
        <translation>Filter löschen</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>Filteroptionen</translation>
    </message>
    <message>
        <source>There are errors</source>
        <translation>Es gibt Fehler</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Slider</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>%1 slider</source>
        <translation>%1, Schieberegler</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>IP-Konfiguration des Netzwerkadapters</translation>
    </message>
    <message>
        <source>MAC Address        </source>
        <translation>MAC-Adresse        </translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>IP-Konfiguration der Kamera</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP-&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>&amp;Subnetzmaske</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>Standard-&amp;Gateway</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>Subnetzmaske passt nicht!</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP-Konfiguration in Ordnung</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>Falsche IP-Adresse!</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP-Adresse passt nicht zum Subnetz!</translation>
    </message>
    <message>
        <source>MAC address of the network adapter</source>
        <translation>MAC-Adresse des Netzwerkadapters</translation>
    </message>
    <message>
        <source>IP address of the network adapter</source>
        <translation>IP-Adresse des Netzwerkadapters</translation>
    </message>
    <message>
        <source>Subnet mask of the network adapter</source>
        <translation>Subnetzmaske des Netzwerkadapters</translation>
    </message>
    <message>
        <source>MAC address of the camera</source>
        <translation>MAC-Adresse der Kamera</translation>
    </message>
    <message>
        <source>IP address of the camera</source>
        <translation>IP-Adresse der Kamera</translation>
    </message>
    <message>
        <source>Subnet mask of the camera</source>
        <translation>Subnetzmaske der Kamera</translation>
    </message>
    <message>
        <source>Default gateway of the camera</source>
        <translation>Standard-Gateway der Kamera</translation>
    </message>
    <message>
        <source>The IP address is not complete.</source>
        <translation>Die IP-Adresse ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The default gateway is not complete.</source>
        <translation>Das Standardgateway ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The subnet mask is not complete.</source>
        <translation>Die Subnetzmaske ist nicht vollständig.</translation>
    </message>
    <message>
        <source>This is the address of the subnet itself.</source>
        <translation>Das ist die Adresse des Subnetzes selbst.</translation>
    </message>
    <message>
        <source>This is the subnet&apos;s broadcast address.</source>
        <translation>Das ist die Broadcast-Adresse des Subnetzes.</translation>
    </message>
    <message>
        <source>This is the gateway&apos;s address.</source>
        <translation>Das ist die Adresse des Gateways.</translation>
    </message>
</context>
</TS>
