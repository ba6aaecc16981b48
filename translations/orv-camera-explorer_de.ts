<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulation</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>Cannot open the camera &apos;%1&apos;: %2.</source>
        <translation>Die Kamera „%1“ lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no camera system.</source>
        <translation>Es gibt kein Kamerasystem.</translation>
    </message>
    <message>
        <source>There is no camera that can be opened.</source>
        <translation>Es gibt keine Kamera, die geöffnet werden kann.</translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;; there are: %2.</source>
        <translation>Es gibt keine Kamera „%1“, sondern: %2.</translation>
    </message>
    <message>
        <source>There are several cameras: %1; &apos;--camera&apos; names one.</source>
        <translation>Es gibt mehrere Kameras: %1; „--camera“ nennt eine.</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>es dauert zu lange</translation>
    </message>
</context>
<context>
    <name>ConfigureMenu</name>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Konfigurieren</translation>
    </message>
    <message>
        <source>Configuration &amp;Window</source>
        <translation>&amp;Konfigurationsfenster</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>Explorer</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no display; &apos;--screenshot DIR&apos; draws the window into a file.</source>
        <translation>Es gibt keine Anzeige; „--screenshot DIR“ zeichnet das Fenster in eine Datei.</translation>
    </message>
</context>
<context>
    <name>ExplorerWindow</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Camera...</source>
        <translation>&amp;Kamera öffnen...</translation>
    </message>
    <message>
        <source>Choose another camera</source>
        <translation>Eine andere Kamera wählen</translation>
    </message>
    <message>
        <source>&amp;Open Description...</source>
        <translation>&amp;Beschreibung öffnen...</translation>
    </message>
    <message>
        <source>Show a GenICam description</source>
        <translation>Eine GenICam-Beschreibung zeigen</translation>
    </message>
    <message>
        <source>&amp;Save View State...</source>
        <translation>&amp;Ansicht speichern...</translation>
    </message>
    <message>
        <source>&amp;Load View State...</source>
        <translation>Ansicht &amp;laden...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>Kamera&amp;s</translation>
    </message>
    <message>
        <source>&amp;Simulated</source>
        <translation>&amp;Simulierte</translation>
    </message>
    <message>
        <source>&amp;Real</source>
        <translation>&amp;Echte</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>&amp;Beide</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Refresh Values</source>
        <translation>Werte &amp;neu lesen</translation>
    </message>
    <message>
        <source>Read the values of the tree again</source>
        <translation>Die Werte des Baums noch einmal lesen</translation>
    </message>
    <message>
        <source>&amp;Poll</source>
        <translation>&amp;Regelmäßig lesen</translation>
    </message>
    <message>
        <source>Read values that change by themselves regularly</source>
        <translation>Werte, die sich von selbst ändern, regelmäßig lesen</translation>
    </message>
    <message>
        <source>Polling &amp;Interval...</source>
        <translation>Lese&amp;abstand...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>%1 is shown.</source>
        <translation>%1 wird gezeigt.</translation>
    </message>
    <message>
        <source>%1 - Camera Explorer</source>
        <translation>%1 - Kamera-Explorer</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>%1 is back.</source>
        <translation>%1 ist wieder da.</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 ist verloren gegangen.</translation>
    </message>
    <message>
        <source>Open Description</source>
        <translation>Beschreibung öffnen</translation>
    </message>
    <message>
        <source>GenICam descriptions (*.xml);;All files (*)</source>
        <translation>GenICam-Beschreibungen (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save View State</source>
        <translation>Ansicht speichern</translation>
    </message>
    <message>
        <source>Load View State</source>
        <translation>Ansicht laden</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Polling Interval</source>
        <translation>Leseabstand</translation>
    </message>
    <message>
        <source>Milliseconds:</source>
        <translation>Millisekunden:</translation>
    </message>
    <message>
        <source>Polling every %1 ms</source>
        <translation>Liest alle %1 ms</translation>
    </message>
    <message>
        <source>Not polling</source>
        <translation>Liest nicht regelmäßig</translation>
    </message>
    <message>
        <source>Refreshing failed: %1</source>
        <translation>Neu lesen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>About Camera Explorer</source>
        <translation>Über Kamera-Explorer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Camera Explorer %1&lt;/b&gt;&lt;p&gt;Shows the features of GenICam cameras.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Kamera-Explorer %1&lt;/b&gt;&lt;p&gt;Zeigt die Merkmale von GenICam-Kameras.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>How often each brightness occurs, from black to the largest value</source>
        <translation>Wie oft jede Helligkeit vorkommt, von Schwarz bis zum größten Wert</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Writes and errors</source>
        <translation>Schreiben und Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Arten</translation>
    </message>
    <message>
        <source>The kinds of lines that are shown</source>
        <translation>Welche Arten von Zeilen gezeigt werden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all that are shown</source>
        <translation>Die ausgewählten Zeilen kopieren, oder alle gezeigten</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Write the lines that are shown into a file</source>
        <translation>Die gezeigten Zeilen in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>Alle Zeilen entfernen</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Texts (*.txt *.log);;All files (*)</source>
        <translation>Texte (*.txt *.log);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The log has been saved in &apos;%1&apos;.</source>
        <translation>Das Protokoll wurde in „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Show only lines that have this text in them; Escape clears it</source>
        <translation>Nur Zeilen zeigen, in denen dieser Text steht; Escape löscht ihn</translation>
    </message>
</context>
<context>
    <name>OpeningDialog</name>
    <message>
        <source>Open Camera</source>
        <translation>Kamera öffnen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Fetching the description...</source>
        <translation>Die Beschreibung wird geholt...</translation>
    </message>
    <message>
        <source>Making the features...</source>
        <translation>Die Merkmale werden angelegt...</translation>
    </message>
    <message>
        <source>The camera is not connected.</source>
        <translation>Die Kamera ist nicht verbunden.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Empty value after &apos;--%1&apos;.</source>
        <translation>Leerer Wert nach „--%1“.</translation>
    </message>
    <message>
        <source>&apos;--set&apos; needs NAME=VALUE, not &apos;%1&apos;.</source>
        <translation>„--set“ braucht NAME=WERT, nicht „%1“.</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--snap&apos; exclude each other.</source>
        <translation>„--xml“ und „--snap“ schließen einander aus.</translation>
    </message>
    <message>
        <source>&apos;--list&apos; goes without another camera or command.</source>
        <translation>„--list“ steht ohne andere Kamera und ohne anderen Befehl.</translation>
    </message>
    <message>
        <source>&apos;--screenshot&apos; goes without other commands.</source>
        <translation>„--screenshot“ steht ohne andere Befehle.</translation>
    </message>
    <message>
        <source>&apos;--real&apos; and &apos;--simulated&apos; exclude each other.</source>
        <translation>„--real“ und „--simulated“ schließen einander aus.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--camera&apos; exclude each other.</source>
        <translation>„--xml“ und „--camera“ schließen einander aus.</translation>
    </message>
    <message>
        <source>&apos;--adapter&apos; and &apos;--address&apos; need &apos;--real&apos;.</source>
        <translation>„--adapter“ und „--address“ brauchen „--real“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 address.</source>
        <translation>„%1“ ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <source>Real cameras need the module libOrvCameraApiAravis.so, which is not installed.</source>
        <translation>Echte Kameras brauchen das Modul libOrvCameraApiAravis.so, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>There is no language &apos;%1&apos;; there are: %2.</source>
        <translation>Es gibt keine Sprache „%1“, sondern: %2.</translation>
    </message>
    <message>
        <source>Shows the features of a GenICam camera.</source>
        <translation>Zeigt die Merkmale einer GenICam-Kamera.</translation>
    </message>
    <message>
        <source>Print this text.</source>
        <translation>Diesen Text ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Show the GenICam description FILE over an empty memory.</source>
        <translation>Die GenICam-Beschreibung DATEI über leerem Speicher zeigen.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Open the camera with the identifier ID instead of asking for one.</source>
        <translation>Die Kamera mit der Kennung KENNUNG öffnen, ohne zu fragen.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>KENNUNG</translation>
    </message>
    <message>
        <source>Show the cameras on the network and on USB instead of simulated ones.</source>
        <translation>Die Kameras am Netz und an USB zeigen statt der simulierten.</translation>
    </message>
    <message>
        <source>Show simulated cameras.</source>
        <translation>Simulierte Kameras zeigen.</translation>
    </message>
    <message>
        <source>Print the cameras that are found, without a window.</source>
        <translation>Die gefundenen Kameras ausgeben, ohne Fenster.</translation>
    </message>
    <message>
        <source>Print the value of the feature NAME, without a window.</source>
        <translation>Den Wert des Merkmals NAME ausgeben, ohne Fenster.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Write VALUE to the feature NAME; execute it if it is a command.</source>
        <translation>WERT in das Merkmal NAME schreiben; einen Befehl ausführen.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NAME=WERT</translation>
    </message>
    <message>
        <source>Write the settings of the camera into FILE, &apos;-&apos; for the standard output.</source>
        <translation>Die Einstellungen der Kamera in DATEI schreiben, „-“ für die Standardausgabe.</translation>
    </message>
    <message>
        <source>Set the camera as FILE says, &apos;-&apos; for the standard input.</source>
        <translation>Die Kamera nach DATEI einstellen, „-“ für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Write a picture of the camera into the PNG file FILE.</source>
        <translation>Ein Bild der Kamera in die PNG-Datei DATEI schreiben.</translation>
    </message>
    <message>
        <source>Look for cameras on the network adapter NAME only.</source>
        <translation>Nur am Netzwerkadapter NAME nach Kameras suchen.</translation>
    </message>
    <message>
        <source>Ask the camera at the address IP only, without a broadcast.</source>
        <translation>Nur die Kamera an der Adresse IP fragen, ohne Rundruf.</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Draw the windows into PNG files in the directory DIR and end; needs no display.</source>
        <translation>Die Fenster in PNG-Dateien im Verzeichnis ORDNER zeichnen und enden; braucht keine Anzeige.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Show the windows in the language LANGUAGE (%1) instead of the system&apos;s.</source>
        <translation>Die Fenster in der Sprache SPRACHE (%1) zeigen statt in der des Systems.</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>SPRACHE</translation>
    </message>
</context>
<context>
    <name>PictureDock</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Show the pictures of the camera</source>
        <translation>Die Bilder der Kamera zeigen</translation>
    </message>
    <message>
        <source>&amp;One Frame</source>
        <translation>&amp;Ein Bild</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Das ganze Bild zeigen</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Show a pixel of the picture as one of the screen</source>
        <translation>Einen Bildpunkt als einen des Bildschirms zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show the picture larger</source>
        <translation>Das Bild größer zeigen</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show the picture smaller</source>
        <translation>Das Bild kleiner zeigen</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>&amp;Histogramm</translation>
    </message>
    <message>
        <source>Show how often each brightness occurs</source>
        <translation>Zeigen, wie oft jede Helligkeit vorkommt</translation>
    </message>
    <message>
        <source>Save as &amp;PNG...</source>
        <translation>Als P&amp;NG speichern...</translation>
    </message>
    <message>
        <source>Save the picture as it is now</source>
        <translation>Das Bild speichern, wie es jetzt ist</translation>
    </message>
    <message>
        <source>There is no camera that could send pictures</source>
        <translation>Es gibt keine Kamera, die Bilder senden könnte</translation>
    </message>
    <message>
        <source>The camera is disconnected</source>
        <translation>Die Kamera ist getrennt</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>Die Kamera anhalten</translation>
    </message>
    <message>
        <source>Let the camera send pictures</source>
        <translation>Die Kamera Bilder senden lassen</translation>
    </message>
    <message>
        <source>Let the camera send one picture</source>
        <translation>Die Kamera ein Bild senden lassen</translation>
    </message>
    <message>
        <source>F9 starts the camera</source>
        <translation>F9 startet die Kamera</translation>
    </message>
    <message>
        <source>%L1 frames/s</source>
        <translation>%L1 Bilder/s</translation>
    </message>
    <message>
        <source>%L1 received</source>
        <translation>%L1 empfangen</translation>
    </message>
    <message>
        <source>%L1 skipped</source>
        <translation>%L1 übersprungen</translation>
    </message>
    <message>
        <source>%L1 lost</source>
        <translation>%L1 verloren</translation>
    </message>
    <message>
        <source>%1 x %2, %3</source>
        <translation>%1 x %2, %3</translation>
    </message>
    <message>
        <source>, shown at %1 %</source>
        <translation>, gezeigt mit %1 %</translation>
    </message>
    <message>
        <source>(%1, %2) %3</source>
        <translation>(%1, %2) %3</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>PNG-Bilder (*.png);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Saved &apos;%1&apos;.</source>
        <translation>„%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>PixelFormat</name>
    <message>
        <source>The pixel format %1 is unknown.</source>
        <translation>Das Pixelformat %1 ist unbekannt.</translation>
    </message>
    <message>
        <source>The picture has no pixels (%1).</source>
        <translation>Das Bild hat keine Bildpunkte (%1).</translation>
    </message>
    <message>
        <source>The picture is too large (%1).</source>
        <translation>Das Bild ist zu groß (%1).</translation>
    </message>
    <message>
        <source>%1 of %2 pixels are missing.</source>
        <translation>%1 von %2 Bildpunkten fehlen.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Für das Bild ist nicht genug Speicher da.</translation>
    </message>
</context>
<context>
    <name>PlugMenu</name>
    <message>
        <source>Plug &amp;In and Out</source>
        <translation>&amp;Ein- und ausstecken</translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>None has come within %1 s.</source>
        <translation>In %1 s ist keines gekommen.</translation>
    </message>
    <message>
        <source>There is no camera.</source>
        <translation>Es gibt keine Kamera.</translation>
    </message>
    <message>
        <source>There is no feature &apos;%1&apos; with a value.</source>
        <translation>Es gibt kein Merkmal „%1“ mit einem Wert.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Cannot set &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht eingestellt werden: %2</translation>
    </message>
    <message>
        <source>Cannot execute &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht ausgeführt werden: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not end.</source>
        <translation>„%1“ endet nicht.</translation>
    </message>
    <message>
        <source>%1: wanted &apos;%2&apos;, has &apos;%3&apos;: %4</source>
        <translation>%1: gewünscht „%2“, ist „%3“: %4</translation>
    </message>
    <message>
        <source>There is no picture: %1</source>
        <translation>Es gibt kein Bild: %1</translation>
    </message>
    <message>
        <source>The picture cannot be shown: %1</source>
        <translation>Das Bild kann nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>Das Bild kann nicht als PNG geschrieben werden.</translation>
    </message>
    <message>
        <source>It was lost on its way.</source>
        <translation>Es ging unterwegs verloren.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has the value &apos;%2&apos; now.</source>
        <translation>„%1“ hat jetzt den Wert „%2“.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>It failed without a reason.</source>
        <translation>Es ist ohne Grund fehlgeschlagen.</translation>
    </message>
    <message>
        <source>It can only be written.</source>
        <translation>Es kann nur geschrieben werden.</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>Die Kamera hat es nicht.</translation>
    </message>
    <message>
        <source>It can only be read now.</source>
        <translation>Es kann jetzt nur gelesen werden.</translation>
    </message>
    <message>
        <source>It is not available now.</source>
        <translation>Es ist jetzt nicht verfügbar.</translation>
    </message>
    <message>
        <source>The camera has taken another value.</source>
        <translation>Die Kamera hat einen anderen Wert übernommen.</translation>
    </message>
    <message>
        <source>It is not in the file.</source>
        <translation>Es steht nicht in der Datei.</translation>
    </message>
    <message>
        <source>The camera has no feature of that name with a value.</source>
        <translation>Die Kamera hat kein Merkmal dieses Namens mit einem Wert.</translation>
    </message>
    <message>
        <source>It was not tried.</source>
        <translation>Es wurde nicht versucht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be set to &apos;%2&apos;: %3</source>
        <translation>„%1“ kann nicht auf „%2“ gestellt werden: %3</translation>
    </message>
    <message>
        <source>Its text has a line break, which no line of a file can hold.</source>
        <translation>Sein Text hat einen Zeilenumbruch, der in keine Zeile einer Datei passt.</translation>
    </message>
    <message>
        <source>It could not be put back to &apos;%1&apos;: %2</source>
        <translation>Es konnte nicht auf „%1“ zurückgestellt werden: %2</translation>
    </message>
    <message>
        <source>The camera marks no feature as a setting: all that can be read and written are saved, except those of its connection.</source>
        <translation>Die Kamera kennzeichnet kein Merkmal als Einstellung: Alle les- und schreibbaren werden gespeichert, außer denen ihrer Verbindung.</translation>
    </message>
    <message>
        <source>What it selects is saved once only: %1</source>
        <translation>Was es auswählt, wird nur einmal gespeichert: %1</translation>
    </message>
    <message>
        <source>It has too many entries: not all of them are saved.</source>
        <translation>Es hat zu viele Einträge: Nicht alle werden gespeichert.</translation>
    </message>
    <message>
        <source>What &apos;%1&apos; selects is not saved: %2</source>
        <translation>Was „%1“ auswählt, wird nicht gespeichert: %2</translation>
    </message>
    <message>
        <source>There is nothing that could be saved. %1</source>
        <translation>Es gibt nichts, was gespeichert werden könnte. %1</translation>
    </message>
    <message>
        <source>The camera does not answer any more: %1</source>
        <translation>Die Kamera antwortet nicht mehr: %1</translation>
    </message>
    <message>
        <source>It belongs to the connection, not to the settings.</source>
        <translation>Es gehört zur Verbindung, nicht zu den Einstellungen.</translation>
    </message>
    <message>
        <source>It was set, and could not be read again: %1</source>
        <translation>Es wurde gesetzt und konnte nicht wieder gelesen werden: %1</translation>
    </message>
    <message>
        <source>Another setting has changed it again.</source>
        <translation>Eine andere Einstellung hat es wieder geändert.</translation>
    </message>
    <message>
        <source>Not all that it selects is saved: %1</source>
        <translation>Nicht alles, was es auswählt, ist gespeichert: %1</translation>
    </message>
    <message>
        <source>Its text would be taken for selectors.</source>
        <translation>Sein Text würde für Selektoren gehalten.</translation>
    </message>
    <message>
        <source>It is too large for a file.</source>
        <translation>Es ist zu groß für eine Datei.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>There are no settings in it.</source>
        <translation>Darin sind keine Einstellungen.</translation>
    </message>
    <message>
        <source>The head of a settings file is missing.</source>
        <translation>Der Kopf einer Einstellungsdatei fehlt.</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>Die Zeile ist zu lang.</translation>
    </message>
    <message>
        <source>The line has a NUL byte.</source>
        <translation>Die Zeile enthält ein NUL-Byte.</translation>
    </message>
    <message>
        <source>The line is no setting: &apos;%1&apos;.</source>
        <translation>Die Zeile ist keine Einstellung: „%1“.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>There is more of that kind.</source>
        <translation>Es gibt mehr von dieser Art.</translation>
    </message>
    <message>
        <source>It has too many lines.</source>
        <translation>Sie hat zu viele Zeilen.</translation>
    </message>
</context>
<context>
    <name>SettingsJob</name>
    <message>
        <source>Ending...</source>
        <translation>Wird beendet...</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>S&amp;ettings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Save Settings...</source>
        <translation>&amp;Einstellungen speichern...</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>&amp;Load Settings...</source>
        <translation>Einstellungen &amp;laden...</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>&amp;Compare With File...</source>
        <translation>&amp;Mit Datei vergleichen...</translation>
    </message>
    <message>
        <source>Compare With File</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>Write the settings of the camera into a file</source>
        <translation>Die Einstellungen der Kamera in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Set the camera as a file says</source>
        <translation>Die Kamera nach einer Datei einstellen</translation>
    </message>
    <message>
        <source>Show what differs between the camera and a file</source>
        <translation>Zeigen, worin sich Kamera und Datei unterscheiden</translation>
    </message>
    <message>
        <source>Compare &amp;Two Files...</source>
        <translation>&amp;Zwei Dateien vergleichen...</translation>
    </message>
    <message>
        <source>First File</source>
        <translation>Erste Datei</translation>
    </message>
    <message>
        <source>Show what differs between two files</source>
        <translation>Zeigen, worin sich zwei Dateien unterscheiden</translation>
    </message>
    <message>
        <source>Settings (*.gps *.txt);;All files (*)</source>
        <translation>Einstellungen (*.gps *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Second File</source>
        <translation>Zweite Datei</translation>
    </message>
    <message>
        <source>Lines saved in &apos;%1&apos;: %2</source>
        <translation>In „%1“ gespeicherte Zeilen: %2</translation>
    </message>
    <message>
        <source>What is missing, and why</source>
        <translation>Was fehlt, und warum</translation>
    </message>
    <message>
        <source>The settings are those of another camera: %1.
This one is: %2.</source>
        <translation>Die Einstellungen sind die einer anderen Kamera: %1.
Diese ist: %2.</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Zurückstellen</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Gewünscht</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>It has been set.</source>
        <translation>Es wurde eingestellt.</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been set, %3 could not be set; the others were so already.</source>
        <translation>%1 von %2 Einstellungen wurden gesetzt, %3 konnten nicht gesetzt werden; die anderen waren schon so.</translation>
    </message>
    <message>
        <source>It was interrupted.</source>
        <translation>Es wurde unterbrochen.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Comparing was interrupted.</source>
        <translation>Das Vergleichen wurde unterbrochen.</translation>
    </message>
    <message>
        <source>Only in &apos;%1&apos;.</source>
        <translation>Nur in „%1“.</translation>
    </message>
    <message>
        <source>Differences between &apos;%1&apos; and &apos;%2&apos;: %3</source>
        <translation>Unterschiede zwischen „%1“ und „%2“: %3</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The camera sends pictures, which locks some of its settings.</source>
        <translation>Die Kamera sendet Bilder; das sperrt einige ihrer Einstellungen.</translation>
    </message>
    <message>
        <source>&amp;Stop the Pictures</source>
        <translation>Bilder an&amp;halten</translation>
    </message>
    <message>
        <source>%1: the camera does not stop sending pictures.</source>
        <translation>%1: Die Kamera hört nicht auf, Bilder zu senden.</translation>
    </message>
    <message>
        <source>%1 has failed: %2</source>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>Saving was interrupted.</source>
        <translation>Das Speichern wurde unterbrochen.</translation>
    </message>
    <message>
        <source>%1 Nothing was written to &apos;%2&apos;.</source>
        <translation>%1 In „%2“ wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Loading was interrupted: nothing has been set.</source>
        <translation>Das Laden wurde unterbrochen: nichts wurde gesetzt.</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been put back, %3 could not be put back; the others were so already.</source>
        <translation>%1 von %2 Einstellungen wurden zurückgesetzt, %3 konnten nicht zurückgesetzt werden; die anderen waren schon so.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Zurückstellen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all of them</source>
        <translation>Die ausgewählten Zeilen kopieren, oder alle</translation>
    </message>
    <message>
        <source>Write what the camera had before</source>
        <translation>Schreiben, was die Kamera zuvor hatte</translation>
    </message>
</context>
<context>
    <name>SimulationMenu</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulation</translation>
    </message>
    <message>
        <source>Refuse &amp;All Writes</source>
        <translation>&amp;Alles Schreiben verweigern</translation>
    </message>
    <message>
        <source>Re&amp;cover All Features</source>
        <translation>Alle Merkmale &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Let Values &amp;Drift</source>
        <translation>Werte &amp;treiben lassen</translation>
    </message>
    <message>
        <source>a Feature</source>
        <translation>ein Merkmal</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Let &amp;Reading %1 Fail</source>
        <translation>&amp;Lesen von %1 scheitern lassen</translation>
    </message>
    <message>
        <source>Let &amp;Writing %1 Fail</source>
        <translation>&amp;Schreiben von %1 scheitern lassen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no register of its own that could fail.</source>
        <translation>„%1“ hat kein eigenes Register, das scheitern könnte.</translation>
    </message>
    <message>
        <source>The camera refuses all writes until its features recover.</source>
        <translation>Die Kamera verweigert alles Schreiben, bis ihre Merkmale wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>TreeToolsMenu</name>
    <message>
        <source>Feature &amp;Tree</source>
        <translation>Merkmals&amp;baum</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Fa&amp;vorites Only</source>
        <translation>Nur &amp;Favoriten</translation>
    </message>
    <message>
        <source>Show only favorites, which the menus of the features&apos; rows choose</source>
        <translation>Nur Favoriten zeigen, die in den Menüs der Zeilen gewählt werden</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>Nur &amp;Geänderte</translation>
    </message>
    <message>
        <source>Show only features whose value differs from the first that was seen</source>
        <translation>Nur Merkmale zeigen, deren Wert von dem zuerst gesehenen abweicht</translation>
    </message>
    <message>
        <source>&amp;All Categories</source>
        <translation>&amp;Alle Kategorien</translation>
    </message>
    <message>
        <source>End showing one category only</source>
        <translation>Nicht mehr nur eine Kategorie zeigen</translation>
    </message>
    <message>
        <source>&amp;Mark Changes</source>
        <translation>Änderungen &amp;markieren</translation>
    </message>
    <message>
        <source>Show for a moment which values have changed</source>
        <translation>Kurz zeigen, welche Werte sich geändert haben</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Spin Boxes</source>
        <translation>Drehfelder</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 Bit</translation>
    </message>
    <message>
        <source>64 bits, hexadecimal</source>
        <translation>64 Bit, hexadezimal</translation>
    </message>
    <message>
        <source>Steps of 8, Return</source>
        <translation>Schritte von 8, Eingabetaste</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Steps of 0.25, Return</source>
        <translation>Schritte von 0,25, Eingabetaste</translation>
    </message>
    <message>
        <source>With decimals</source>
        <translation>Mit Nachkommastellen</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Log10</source>
        <translation>Log10</translation>
    </message>
    <message>
        <source>Sqrt</source>
        <translation>Wurzel</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Double</translation>
    </message>
    <message>
        <source>Log10, horizontal</source>
        <translation>Log10, waagerecht</translation>
    </message>
    <message>
        <source>Steps of 0.3</source>
        <translation>Schritte von 0,3</translation>
    </message>
    <message>
        <source>Without labels</source>
        <translation>Ohne Beschriftung</translation>
    </message>
    <message>
        <source>Spin Boxes With Sliders</source>
        <translation>Drehfelder mit Schiebereglern</translation>
    </message>
    <message>
        <source>Pop-&amp;up:</source>
        <translation>Auf&amp;klappend:</translation>
    </message>
    <message>
        <source>Pop-up, &amp;horizontal:</source>
        <translation>Aufklappend, &amp;waagerecht:</translation>
    </message>
    <message>
        <source>&amp;Read-only:</source>
        <translation>&amp;Nur lesbar:</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>&amp;Exposure:</source>
        <translation>&amp;Belichtung:</translation>
    </message>
    <message>
        <source> us</source>
        <translation> µs</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>&amp;Gain in decibels, steps of a quarter</source>
        <translation>&amp;Verstärkung in Dezibel, Viertelschritte</translation>
    </message>
</context>
<context>
    <name>WriteWatch</name>
    <message>
        <source>%1, before: %2</source>
        <translation>%1, vorher: %2</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>ausgeführt</translation>
    </message>
    <message>
        <source>written; reading it back failed: %1</source>
        <translation>geschrieben; das Zurücklesen ist fehlgeschlagen: %1</translation>
    </message>
</context>
</TS>
