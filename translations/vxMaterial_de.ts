<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CmdMatExport</name>
    <message>
        <source>Export materials</source>
        <translation>Materialien exportieren</translation>
    </message>
    <message>
        <source>Export materials to JSON file</source>
        <translation>Materialien in eine JSON-Datei exportieren</translation>
    </message>
    <message>
        <source>JSON file(*.json)</source>
        <translation>JSON-Datei(*.json)</translation>
    </message>
</context>
<context>
    <name>CmdMatImport</name>
    <message>
        <source>Import materials</source>
        <translation>Materialien importieren</translation>
    </message>
    <message>
        <source>Import CSV file into material</source>
        <translation>CSV-Datei in ein Material importieren</translation>
    </message>
    <message>
        <source>Import file</source>
        <translation>Datei importieren</translation>
    </message>
    <message>
        <source>All (*)</source>
        <translation>Alle (*)</translation>
    </message>
</context>
<context>
    <name>ComboBoxItemDelegate</name>
    <message>
        <source>one in row %1</source>
        <translation>eins in Zeile %1</translation>
    </message>
    <message>
        <source>two in row %1</source>
        <translation>zwei in Zeile %1</translation>
    </message>
    <message>
        <source>three in row %1</source>
        <translation>drei in Zeile %1</translation>
    </message>
</context>
<context>
    <name>FileCommand</name>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the project in its file</source>
        <translation>Das Projekt in seiner Datei speichern</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the project in another file</source>
        <translation>Das Projekt in einer anderen Datei speichern</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Zuletzt &amp;verwendet</translation>
    </message>
    <message>
        <source>Open one of the projects last used</source>
        <translation>Eines der zuletzt verwendeten Projekte öffnen</translation>
    </message>
    <message>
        <source>Exchange document (*.json)</source>
        <translation>Austauschdokument (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a project from a file</source>
        <translation>Ein Projekt aus einer Datei öffnen</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>Projekt (*.vxmat)</translation>
    </message>
    <message>
        <source>Hand over to the solver</source>
        <translation>An den Solver übergeben</translation>
    </message>
    <message>
        <source>Only what has been applied is handed over.</source>
        <translation>Übergeben wird nur, was übernommen wurde.</translation>
    </message>
    <message>
        <source>&amp;Hand over without them</source>
        <translation>Ohne sie &amp;übergeben</translation>
    </message>
    <message>
        <source>Import document or deck</source>
        <translation>Dokument oder Solverdatei importieren</translation>
    </message>
    <message>
        <source>I&amp;mport document or deck...</source>
        <translation>Dokument oder Solverdatei i&amp;mportieren...</translation>
    </message>
    <message>
        <source>Add the content of an exchange document or of the deck of a solver to the project</source>
        <translation>Dem Projekt den Inhalt eines Austauschdokuments oder einer Solverdatei hinzufügen</translation>
    </message>
</context>
<context>
    <name>Gui::ColorChoice</name>
    <message>
        <source>Choose color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>The color cannot be set</source>
        <translation>Die Farbe kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>Gui::Command</name>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; failed</source>
        <translation>Der Befehl „%1“ ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Gui::CoreEditor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: its editor &quot;%2&quot; is missing. The module of the editor may not be loaded.</source>
        <translation>„%1“ kann nicht geöffnet werden: Der Editor „%2“ fehlt. Möglicherweise ist das Modul des Editors nicht geladen.</translation>
    </message>
</context>
<context>
    <name>Gui::DockSet</name>
    <message>
        <source>The docking window &quot;%1&quot; cannot be made</source>
        <translation>Das Andockfenster „%1“ kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>Gui::ExplorerPane</name>
    <message>
        <source>Filter of the project explorer</source>
        <translation>Filter des Projekt-Explorers</translation>
    </message>
    <message>
        <source>The project explorer cannot be filtered</source>
        <translation>Der Projekt-Explorer kann nicht gefiltert werden</translation>
    </message>
    <message>
        <source>Matches: %1 of %2</source>
        <translation>Treffer: %1 von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not match and is hidden.</source>
        <translation>„%1“ passt nicht und ist ausgeblendet.</translation>
    </message>
    <message>
        <source>New or changed objects that do not match and are hidden: %1</source>
        <translation>Neue oder geänderte Objekte, die nicht passen und ausgeblendet sind: %1</translation>
    </message>
</context>
<context>
    <name>Gui::FilterField</name>
    <message>
        <source>The text cannot be completed</source>
        <translation>Der Text kann nicht vervollständigt werden</translation>
    </message>
</context>
<context>
    <name>Gui::GeneralPage</name>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Now in use: %1, the language given at the start.</source>
        <translation>Jetzt verwendet: %1, die beim Start angegebene Sprache.</translation>
    </message>
</context>
<context>
    <name>Gui::GuiApplication</name>
    <message>
        <source>An error occurred</source>
        <translation>Ein Fehler ist aufgetreten</translation>
    </message>
</context>
<context>
    <name>Gui::GuiProject</name>
    <message>
        <source>The tree node &quot;%1&quot; cannot be made</source>
        <translation>Der Baumknoten „%1“ kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The properties of a tree node cannot be restored</source>
        <translation>Die Eigenschaften eines Baumknotens können nicht wiederhergestellt werden</translation>
    </message>
</context>
<context>
    <name>Gui::MDIWindow</name>
    <message>
        <source>An edit in &quot;%1&quot; cannot be completed</source>
        <translation>Eine Eingabe in „%1“ kann nicht abgeschlossen werden</translation>
    </message>
</context>
<context>
    <name>Gui::MainWindow</name>
    <message>
        <source>There is no workbench &quot;%1&quot;.</source>
        <translation>Es gibt keine Arbeitsumgebung „%1“.</translation>
    </message>
    <message>
        <source>Project explorer</source>
        <translation>Projektbaum</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>Gui::MessageLogView</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Double-click the message, or press Return, to go to the object.</source>
        <translation>Doppelklick oder Eingabetaste führt zum Objekt.</translation>
    </message>
    <message>
        <source>The object of a message cannot be shown</source>
        <translation>Das Objekt einer Meldung kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The object of this message has been deleted or closed.</source>
        <translation>Das Objekt dieser Meldung wurde gelöscht oder geschlossen.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>Meldungen &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Gui::ObjectClipboard</name>
    <message>
        <source>These properties of &quot;%1&quot; could not be pasted: %2.</source>
        <translation>Diese Eigenschaften von „%1“ konnten nicht eingefügt werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be pasted into &quot;%2&quot;: a project of this kind does not take such objects. Nothing was pasted.</source>
        <translation>„%1“ kann nicht in „%2“ eingefügt werden: Ein Projekt dieser Art nimmt solche Objekte nicht auf. Es wurde nichts eingefügt.</translation>
    </message>
    <message>
        <source>An object cannot be pasted completely</source>
        <translation>Ein Objekt kann nicht vollständig eingefügt werden</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>The settings are not an object.</source>
        <translation>Die Einstellungen sind kein Objekt.</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; is not a text.</source>
        <translation>Die Einstellung „%1“ ist kein Text.</translation>
    </message>
</context>
<context>
    <name>Gui::PictureFactory</name>
    <message>
        <source>The picture %1 is missing.</source>
        <translation>Das Bild %1 fehlt.</translation>
    </message>
</context>
<context>
    <name>Gui::PreferencesDialog</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>A page of the preferences cannot be made</source>
        <translation>Eine Seite der Einstellungen kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>A page of the preferences cannot be stored</source>
        <translation>Eine Seite der Einstellungen kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The preferences are in use, but cannot be stored for the next start: &quot;%1&quot; cannot be written.</source>
        <translation>Die Einstellungen gelten, können aber nicht für den nächsten Start gespeichert werden: „%1“ ist nicht beschreibbar.</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectExplorer</name>
    <message>
        <source>Project explorer</source>
        <translation>Projektbaum</translation>
    </message>
    <message>
        <source>Display as</source>
        <translation>Darstellen als</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectTreeModel</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Empty: nothing is defined yet</source>
        <translation>Leer: noch ist nichts definiert</translation>
    </message>
    <message>
        <source>
Suppressed</source>
        <translation>
Unterdrückt</translation>
    </message>
    <message>
        <source>The module for &quot;%1&quot; is not loaded. Its data are saved unchanged, but cannot be edited.</source>
        <translation>Das Modul für „%1“ ist nicht geladen. Seine Daten werden unverändert gespeichert, können aber nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Not ready. Findings: %1</source>
        <translation>Nicht bereit. Befunde: %1</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyDelegate</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyPanel</name>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>%1 entries are selected.</source>
        <translation>%1 Einträge sind ausgewählt.</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Gui::Translator</name>
    <message>
        <source>The translation %1 cannot be read; its texts are shown in English.</source>
        <translation>Die Übersetzung %1 kann nicht gelesen werden; ihre Texte werden auf Englisch angezeigt.</translation>
    </message>
</context>
<context>
    <name>Gui::TreeFilter</name>
    <message>
        <source>Filter by label</source>
        <translation>Nach Bezeichnung filtern</translation>
    </message>
    <message>
        <source>Shows only objects whose labels have all of these words.</source>
        <translation>Zeigt nur Objekte, deren Bezeichnungen alle diese Wörter enthalten.</translation>
    </message>
</context>
<context>
    <name>Gui::WelcomePage</name>
    <message>
        <source>No project is open</source>
        <translation>Kein Projekt ist geöffnet</translation>
    </message>
    <message>
        <source>The project is empty</source>
        <translation>Das Projekt ist leer</translation>
    </message>
    <message>
        <source>The project menu offers what can be added.</source>
        <translation>Das Menü „Projekt“ bietet an, was hinzugefügt werden kann.</translation>
    </message>
    <message>
        <source>No document is open</source>
        <translation>Kein Dokument ist geöffnet</translation>
    </message>
    <message>
        <source>Double-click an object in the project explorer.</source>
        <translation>Doppelklicken Sie ein Objekt im Projektbaum.</translation>
    </message>
    <message>
        <source>No module is loaded</source>
        <translation>Kein Modul ist geladen</translation>
    </message>
    <message>
        <source>Make a new project, or open a saved one.</source>
        <translation>Legen Sie ein neues Projekt an, oder öffnen Sie ein gespeichertes.</translation>
    </message>
    <message>
        <source>The message log names the modules that could not be loaded, and the reasons.</source>
        <translation>Das Meldungsprotokoll nennt die Module, die nicht geladen werden konnten, und die Gründe.</translation>
    </message>
</context>
<context>
    <name>HelpCommand</name>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Show the keys of all commands</source>
        <translation>Die Tasten aller Befehle anzeigen</translation>
    </message>
    <message>
        <source>Open &amp;example project</source>
        <translation>Beispiel&amp;projekt öffnen</translation>
    </message>
    <message>
        <source>Open a copy of the example project</source>
        <translation>Eine Kopie des Beispielprojekts öffnen</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Show the guide to the program, or close it</source>
        <translation>Die Anleitung zum Programm zeigen oder schließen</translation>
    </message>
</context>
<context>
    <name>Kelta</name>
    <message>
        <source>an exception without a text</source>
        <translation>eine Ausnahme ohne Text</translation>
    </message>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>eine Ausnahme unbekannter Art</translation>
    </message>
    <message>
        <source>a text has a character that XML cannot hold</source>
        <translation>ein Text enthält ein Zeichen, das in XML nicht erlaubt ist</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>dies ist keine Datei</translation>
    </message>
    <message>
        <source>A listener of the message log failed: %1</source>
        <translation>Ein Empfänger des Meldungsprotokolls ist fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>Kelta::DataPersistence</name>
    <message>
        <source>%1: this file does not hold an object of the application</source>
        <translation>%1: Diese Datei enthält kein Objekt der Anwendung</translation>
    </message>
    <message>
        <source>%1: this file holds an object of class &quot;%2&quot;; one of &quot;%3&quot; is needed</source>
        <translation>%1: Diese Datei enthält ein Objekt der Klasse „%2“; benötigt wird eines der Klasse „%3“</translation>
    </message>
</context>
<context>
    <name>Kelta::ModuleDescriptor</name>
    <message>
        <source>the descriptor is not a file</source>
        <translation>die Beschreibung ist keine Datei</translation>
    </message>
    <message>
        <source>the descriptor cannot be read: %1</source>
        <translation>die Beschreibung kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the descriptor is larger than %1 bytes</source>
        <translation>die Beschreibung ist größer als %1 Bytes</translation>
    </message>
    <message>
        <source>the descriptor is not JSON: %1 at byte %2</source>
        <translation>die Beschreibung ist kein JSON: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>the descriptor is not a JSON object</source>
        <translation>die Beschreibung ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is not a text</source>
        <translation>„%1“ in der Beschreibung ist kein Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in the descriptor</source>
        <translation>„%1“ fehlt in der Beschreibung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; in the descriptor is not a version; an example of one is &quot;0.1.0&quot;</source>
        <translation>„%1“ von „%2“ in der Beschreibung ist keine Version; ein Beispiel ist „0.1.0“</translation>
    </message>
    <message>
        <source>it needs version %1 of the program, which has version %2</source>
        <translation>es benötigt Version %1 des Programms, das Version %2 hat</translation>
    </message>
    <message>
        <source>&quot;library&quot; in the descriptor is &quot;%1&quot;; it must be a file beside the descriptor, without a folder</source>
        <translation>„library“ in der Beschreibung ist „%1“; es muss eine Datei neben der Beschreibung sein, ohne Ordner</translation>
    </message>
    <message>
        <source>&quot;entries&quot; in the descriptor is not a list of names of functions</source>
        <translation>„entries“ in der Beschreibung ist keine Liste von Funktionsnamen</translation>
    </message>
    <message>
        <source>&quot;needs&quot; in the descriptor is not an object of modules with their versions</source>
        <translation>„needs“ in der Beschreibung ist kein Objekt aus Modulen mit ihren Versionen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is unknown; the known members are %2</source>
        <translation>„%1“ in der Beschreibung ist unbekannt; bekannt sind %2</translation>
    </message>
    <message>
        <source>&quot;module&quot; in the descriptor is &quot;%1&quot;, which differs from the name of the file</source>
        <translation>„module“ in der Beschreibung ist „%1“ und weicht vom Dateinamen ab</translation>
    </message>
</context>
<context>
    <name>Kelta::PluginLoader</name>
    <message>
        <source>an error without a text</source>
        <translation>ein Fehler ohne Text</translation>
    </message>
    <message>
        <source>there is no %1 in %2</source>
        <translation>%1 fehlt in %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which is missing</source>
        <translation>es benötigt das Modul „%1“, das fehlt</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which was not loaded</source>
        <translation>es benötigt das Modul „%1“, das nicht geladen wurde</translation>
    </message>
    <message>
        <source>it needs version %1 of the module &quot;%2&quot;, which has version %3</source>
        <translation>es benötigt Version %1 des Moduls „%2“, das Version %3 hat</translation>
    </message>
    <message>
        <source>it needs itself: %1</source>
        <translation>es benötigt sich selbst: %1</translation>
    </message>
    <message>
        <source>its library %1 has no function &quot;%2&quot;</source>
        <translation>seine Bibliothek %1 hat keine Funktion „%2“</translation>
    </message>
    <message>
        <source>its library cannot be loaded: %1</source>
        <translation>seine Bibliothek kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of its library failed: %2</source>
        <translation>„%1“ seiner Bibliothek ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; was not loaded: %2</source>
        <translation>Das Modul „%1“ wurde nicht geladen: %2</translation>
    </message>
    <message>
        <source>its library %1 is not a regular file</source>
        <translation>ihre Bibliothek %1 ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>its library %1 is incomplete</source>
        <translation>ihre Bibliothek %1 ist unvollständig</translation>
    </message>
</context>
<context>
    <name>Kelta::RootClass</name>
    <message>
        <source>The class &quot;%1&quot; cannot be registered: %2</source>
        <translation>Die Klasse „%1“ kann nicht registriert werden: %2</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>sie hat keinen Namen</translation>
    </message>
    <message>
        <source>another class has this name</source>
        <translation>eine andere Klasse hat diesen Namen</translation>
    </message>
    <message>
        <source>it would be derived from itself</source>
        <translation>sie wäre von sich selbst abgeleitet</translation>
    </message>
</context>
<context>
    <name>MatCmdDelDoc</name>
    <message>
        <source>Close project</source>
        <translation>Projekt schließen</translation>
    </message>
    <message>
        <source>Delete a material project</source>
        <translation>Ein Materialprojekt löschen</translation>
    </message>
</context>
<context>
    <name>MatCmdDelete</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the selected material objects</source>
        <translation>Löscht die ausgewählten Materialien</translation>
    </message>
</context>
<context>
    <name>MatCmdEdit</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit current material</source>
        <translation>Das aktuelle Material bearbeiten</translation>
    </message>
</context>
<context>
    <name>MatCmdMaterial</name>
    <message>
        <source>Add material</source>
        <translation>Material hinzufügen</translation>
    </message>
    <message>
        <source>Add a new material</source>
        <translation>Ein neues Material hinzufügen</translation>
    </message>
    <message>
        <source>Invalid project</source>
        <translation>Ungültiges Projekt</translation>
    </message>
    <message>
        <source>No material project.</source>
        <translation>Kein Materialprojekt.</translation>
    </message>
</context>
<context>
    <name>MatCmdNewDoc</name>
    <message>
        <source>&amp;New material project</source>
        <translation>&amp;Neues Materialprojekt</translation>
    </message>
    <message>
        <source>Create a new material project</source>
        <translation>Ein neues Materialprojekt anlegen</translation>
    </message>
    <message>
        <source>Material project</source>
        <translation>Materialprojekt</translation>
    </message>
    <message>
        <source>Material project is already presented in Project Explorer window.</source>
        <translation>Im Projektbaum gibt es bereits ein Materialprojekt.</translation>
    </message>
</context>
<context>
    <name>MatGui::ComboDelegate</name>
    <message>
        <source>工人</source>
        <translation>Arbeiter</translation>
    </message>
    <message>
        <source>农民</source>
        <translation>Bauer</translation>
    </message>
    <message>
        <source>医生</source>
        <translation>Arzt</translation>
    </message>
    <message>
        <source>律师</source>
        <translation>Anwalt</translation>
    </message>
    <message>
        <source>军人</source>
        <translation>Soldat</translation>
    </message>
</context>
<context>
    <name>MatGui::MaterialChange</name>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>„%1“ ändern</translation>
    </message>
</context>
<context>
    <name>MatGui::MaterialView</name>
    <message>
        <source>Invalid selection</source>
        <translation>Ungültige Auswahl</translation>
    </message>
    <message>
        <source>Please selection one material.</source>
        <translation>Bitte wählen Sie genau ein Material aus.</translation>
    </message>
    <message>
        <source>Empty property</source>
        <translation>Keine Eigenschaft</translation>
    </message>
    <message>
        <source>No property is defined.</source>
        <translation>Es ist keine Eigenschaft definiert.</translation>
    </message>
    <message>
        <source>Invalid material</source>
        <translation>Ungültiges Material</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is not a number!</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ ist keine Zahl!</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is out of the range of numbers!</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ liegt außerhalb des Zahlenbereichs!</translation>
    </message>
    <message>
        <source>Material editor</source>
        <translation>Materialeditor</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; have not been applied.</source>
        <translation>Die Änderungen an „%1“ wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>Wert ändern</translation>
    </message>
    <message>
        <source>Take library material</source>
        <translation>Bibliotheksmaterial übernehmen</translation>
    </message>
    <message>
        <source>Add property</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Remove property</source>
        <translation>Eigenschaft entfernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Restore changes</source>
        <translation>Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <translation>Ein Fehler ist aufgetreten: %1</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; would be read as &quot;%4&quot;: &quot;%5&quot; is not part of the number.</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ würde als „%4“ gelesen: „%5“ gehört nicht zur Zahl.</translation>
    </message>
    <message>
        <source>Type the value without it.</source>
        <translation>Geben Sie den Wert ohne diesen Teil ein.</translation>
    </message>
    <message>
        <source>Type the value in %1, without a unit.</source>
        <translation>Geben Sie den Wert in %1 ein, ohne Einheit.</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read. %4</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ kann nicht gelesen werden. %4</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
</context>
<context>
    <name>MatGui::SheetTableView</name>
    <message>
        <source>Insert rows</source>
        <translation>Zeilen einfügen</translation>
    </message>
    <message>
        <source>Remove rows</source>
        <translation>Zeilen entfernen</translation>
    </message>
    <message>
        <source>Insert columns</source>
        <translation>Spalten einfügen</translation>
    </message>
    <message>
        <source>Remove columns</source>
        <translation>Spalten entfernen</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Eigenschaften …</translation>
    </message>
    <message>
        <source>enum</source>
        <translation>Nummer</translation>
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
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Row %1: Mass density must be positive!</source>
        <translation>Zeile %1: Die Massendichte muss positiv sein!</translation>
    </message>
    <message>
        <source>Row %1: Poisson&apos;s ratio must be between [0.001, 0.499]!</source>
        <translation>Zeile %1: Die Querkontraktionszahl muss in [0.001, 0.499] liegen!</translation>
    </message>
    <message>
        <source>Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!</source>
        <translation>Zeile %1: Die Fließbedingung muss Mises, Mohr-Coulomb oder Drucker-Prager sein!</translation>
    </message>
    <message>
        <source>Row %1: Hardening type must be Bilinear, Multilinear, Swift,                     Ramberg-Osgood, Kinematic, or Combined!</source>
        <translation>Zeile %1: Die Verfestigung muss Bilinear, Multilinear, Swift, Ramberg-Osgood, Kinematic oder Combined sein!</translation>
    </message>
    <message>
        <source>Elasticity and hyper-elasticy cannot be used togeter!</source>
        <translation>Elastizität und Hyperelastizität können nicht zusammen verwendet werden!</translation>
    </message>
    <message>
        <source>Elasticity does not define Young&apos;s modulus!</source>
        <translation>Zur Elastizität fehlt der Elastizitätsmodul!</translation>
    </message>
    <message>
        <source>Elasticity does not define Poisson&apos;s ratio!</source>
        <translation>Zur Elastizität fehlt die Querkontraktionszahl!</translation>
    </message>
</context>
<context>
    <name>MatGui::ViewFeederMaterialObject</name>
    <message>
        <source>Show material</source>
        <translation>Material anzeigen</translation>
    </message>
</context>
<context>
    <name>Mat_Delete</name>
    <message>
        <source>Object dependencies</source>
        <translation>Abhängigkeiten</translation>
    </message>
    <message>
        <source>This object is linked to other objects thus these objects might be broken.
Do you want to continue?</source>
        <translation>Dieses Objekt ist mit anderen verknüpft, die dadurch unbrauchbar werden können.
Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>MaterialAbout</name>
    <message>
        <source>Materials for finite-element simulation: 26 ready-made materials, 36 quantities, and the documents and cards that the solver reads.</source>
        <translation>Materialien für Finite-Elemente-Simulation: 26 fertige Materialien, 36 Größen und die Dokumente und Karten, die der Solver liest.</translation>
    </message>
</context>
<context>
    <name>MaterialCommand</name>
    <message>
        <source>&amp;Check materials</source>
        <translation>Materialien &amp;prüfen</translation>
    </message>
    <message>
        <source>Check whether all materials of the project are ready</source>
        <translation>Prüfen, ob alle Materialien des Projekts bereit sind</translation>
    </message>
    <message>
        <source>&amp;Units...</source>
        <translation>&amp;Einheiten...</translation>
    </message>
    <message>
        <source>Choose the unit system in which the project is shown</source>
        <translation>Wählt das Einheitensystem, in dem das Projekt gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;Export for solver...</source>
        <translation>Für Solver &amp;exportieren...</translation>
    </message>
    <message>
        <source>Write the materials in the input format of a solver</source>
        <translation>Die Materialien im Eingabeformat eines Solvers schreiben</translation>
    </message>
    <message>
        <source>no material project is open</source>
        <translation>kein Materialprojekt ist geöffnet</translation>
    </message>
    <message>
        <source>the project has no materials</source>
        <translation>das Projekt hat keine Materialien</translation>
    </message>
</context>
<context>
    <name>MaterialFilter</name>
    <message>
        <source>Filter: label, or E &gt; 100 GPa</source>
        <translation>Filter: Bezeichnung oder E &gt; 100 GPa</translation>
    </message>
    <message>
        <source>Shows only materials whose labels have these words, or whose values satisfy conditions:
E &gt; 100 GPa and rho &lt; 3 g/cm3
steel and not has Creep
nu 0.25..0.35 or Yield type = Mises
Numbers without a unit are in SI.</source>
        <translation>Zeigt nur Materialien, deren Bezeichnungen diese Wörter enthalten oder deren Werte Bedingungen erfüllen:
E &gt; 100 GPa and rho &lt; 3 g/cm3
steel and not has Creep
nu 0.25..0.35 or Yield type = Mises
Zahlen ohne Einheit sind in SI.</translation>
    </message>
</context>
<context>
    <name>MaterialWelcome</name>
    <message>
        <source>No project is open</source>
        <translation>Kein Projekt ist geöffnet</translation>
    </message>
    <message>
        <source>The project has no materials yet</source>
        <translation>Das Projekt hat noch keine Materialien</translation>
    </message>
    <message>
        <source>No material is open</source>
        <translation>Kein Material ist geöffnet</translation>
    </message>
    <message>
        <source>Double-click a material in the project explorer, or select one and choose Edit.</source>
        <translation>Doppelklicken Sie ein Material im Projektbaum, oder wählen Sie eines aus und dann Bearbeiten.</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Make a new one, or open a saved one.</source>
        <translation>Ein Materialprojekt enthält die Materialien eines Modells. Legen Sie ein neues an, oder öffnen Sie ein gespeichertes.</translation>
    </message>
    <message>
        <source>Add a material. It has the values of structural steel; the editor offers 25 other materials and all quantities.</source>
        <translation>Fügen Sie ein Material hinzu. Es hat die Werte von Baustahl; der Editor bietet 25 andere Materialien und alle Größen.</translation>
    </message>
</context>
<context>
    <name>MaterialWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Aufbau</translation>
    </message>
    <message>
        <source>General Materials</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Nonlinear Materials</source>
        <translation>Nichtlinear</translation>
    </message>
    <message>
        <source>Hyperelastic Materials</source>
        <translation>Hyperelastisch</translation>
    </message>
    <message>
        <source>Thermal &amp;&amp; Fluid Materials</source>
        <translation>Wärme &amp;&amp; Fluide</translation>
    </message>
    <message>
        <source>Thermal &amp; Fluid Materials</source>
        <translation>Wärme &amp; Fluide</translation>
    </message>
    <message>
        <source>Electromagnetc Materials</source>
        <translation>Elektromagnetisch</translation>
    </message>
    <message>
        <source>Acoustic Materials</source>
        <translation>Akustisch</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>In Tabelle laden</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Grundgrößen</translation>
    </message>
    <message>
        <source>Linear Elastic</source>
        <translation>Linear-elastisch</translation>
    </message>
    <message>
        <source>Hyper-elastic</source>
        <translation>Hyperelastisch</translation>
    </message>
    <message>
        <source>Plastic</source>
        <translation>Plastisch</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Kriechen</translation>
    </message>
    <message>
        <source>Visco-elastic</source>
        <translation>Viskoelastisch</translation>
    </message>
    <message>
        <source>Electromagnetic</source>
        <translation>Elektromagnetisch</translation>
    </message>
    <message>
        <source>Material Properties</source>
        <translation>Materialeigenschaften</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Shows the selected library material in the table</source>
        <translation>Zeigt das ausgewählte Bibliotheksmaterial in der Tabelle</translation>
    </message>
    <message>
        <source>Writes the table into the material and closes the window</source>
        <translation>Schreibt die Tabelle in das Material und schließt das Fenster</translation>
    </message>
    <message>
        <source>Writes the table into the material</source>
        <translation>Schreibt die Tabelle in das Material</translation>
    </message>
    <message>
        <source>Removes all properties from the table</source>
        <translation>Entfernt alle Eigenschaften aus der Tabelle</translation>
    </message>
    <message>
        <source>Closes the window and discards changes that are not applied</source>
        <translation>Schließt das Fenster und verwirft Änderungen, die nicht angewendet sind</translation>
    </message>
</context>
<context>
    <name>Obj</name>
    <message>
        <source>A listener failed</source>
        <translation>Ein Empfänger ist fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>Obj::Application</name>
    <message>
        <source>this class is not known</source>
        <translation>diese Klasse ist unbekannt</translation>
    </message>
    <message>
        <source>this is not a class of projects</source>
        <translation>dies ist keine Projektklasse</translation>
    </message>
    <message>
        <source>No project of class &quot;%1&quot; was made: %2.</source>
        <translation>Es wurde kein Projekt der Klasse „%1“ angelegt: %2.</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>die Klasse kann keine Objekte erzeugen</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was restored as &quot;%2&quot;, because another project has its name.</source>
        <translation>Das Projekt „%1“ wurde als „%2“ wiederhergestellt, weil ein anderes Projekt seinen Namen hat.</translation>
    </message>
</context>
<context>
    <name>Obj::Project</name>
    <message>
        <source>this class is not known</source>
        <translation>diese Klasse ist unbekannt</translation>
    </message>
    <message>
        <source>this is not a class of objects of a project</source>
        <translation>dies ist keine Klasse von Projektobjekten</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: %3.</source>
        <translation>Es wurde kein Objekt der Klasse „%1“ zum Projekt „%2“ hinzugefügt: %3.</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: projects of class &quot;%3&quot; do not take such objects.</source>
        <translation>Es wurde kein Objekt der Klasse „%1“ zum Projekt „%2“ hinzugefügt: Projekte der Klasse „%3“ nehmen solche Objekte nicht auf.</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; cannot be added to the project &quot;%2&quot; under the id %3: ids are whole numbers from 1 to 4294967295 that no object of the project has or had, and the name must be one that no object has.</source>
        <translation>Das Objekt „%1“ kann nicht unter der Nummer %3 zum Projekt „%2“ hinzugefügt werden: Nummern sind ganze Zahlen von 1 bis 4294967295, die kein Objekt des Projekts hat oder hatte, und kein Objekt darf den Namen schon haben.</translation>
    </message>
    <message>
        <source>No object can be added to the project &quot;%1&quot;: all ids are used up.</source>
        <translation>Zum Projekt „%1“ kann kein Objekt hinzugefügt werden: Alle Nummern sind verbraucht.</translation>
    </message>
    <message>
        <source>An object failed after its project had been read</source>
        <translation>Ein Objekt ist nach dem Lesen seines Projekts fehlgeschlagen</translation>
    </message>
    <message>
        <source>The execution of an object failed</source>
        <translation>Die Ausführung eines Objekts ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>die Klasse kann keine Objekte erzeugen</translation>
    </message>
    <message>
        <source>The object cannot be restored in the project &quot;%1&quot;, because it does not belong to this project.</source>
        <translation>Das Objekt kann im Projekt „%1“ nicht wiederhergestellt werden, weil es nicht zu diesem Projekt gehört.</translation>
    </message>
    <message>
        <source>An object failed when it was restored</source>
        <translation>Ein Objekt ist beim Wiederherstellen fehlgeschlagen</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; was restored as &quot;%2&quot;, because another object has its name.</source>
        <translation>Das Objekt „%1“ wurde als „%2“ wiederhergestellt, weil ein anderes Objekt seinen Namen hat.</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObject</name>
    <message>
        <source>&quot;%1&quot; cannot be linked to &quot;%2&quot;: both must be in the same project.</source>
        <translation>„%1“ kann nicht mit „%2“ verknüpft werden: Beide müssen zum selben Projekt gehören.</translation>
    </message>
    <message>
        <source>An object failed when its link was removed</source>
        <translation>Ein Objekt ist beim Entfernen seiner Verknüpfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>An object failed when its link was restored</source>
        <translation>Ein Objekt ist beim Wiederherstellen seiner Verknüpfung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObjectGroup</name>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because &quot;%2&quot; is inside it.</source>
        <translation>„%1“ kann kein Mitglied von „%2“ sein, weil „%2“ darin enthalten ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because groups would be nested too deeply.</source>
        <translation>„%1“ kann kein Mitglied von „%2“ sein, weil Gruppen dann zu tief verschachtelt wären.</translation>
    </message>
</context>
<context>
    <name>Obj::PropertyRecords</name>
    <message>
        <source>the properties are not an object</source>
        <translation>die Eigenschaften sind kein Objekt</translation>
    </message>
    <message>
        <source>the links are not an array</source>
        <translation>die Verknüpfungen sind kein Feld</translation>
    </message>
</context>
<context>
    <name>Property</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>ClassLabel</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>PhysicsType</source>
        <translation>Physik</translation>
    </message>
    <message>
        <source>MaterialColor</source>
        <translation>Materialfarbe</translation>
    </message>
    <message>
        <source>Name shown in the project tree</source>
        <translation>Name, den der Projektbaum zeigt</translation>
    </message>
    <message>
        <source>Identity of the tree object</source>
        <translation>Nummer des Objekts im Projektbaum</translation>
    </message>
    <message>
        <source>class name</source>
        <translation>Name der Klasse</translation>
    </message>
    <message>
        <source>Physics type simulated in this project</source>
        <translation>Physik, die dieses Projekt simuliert</translation>
    </message>
    <message>
        <source>Color of material.</source>
        <translation>Farbe des Materials.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Material Project</source>
        <translation>Materialprojekt</translation>
    </message>
    <message>
        <source>Structural</source>
        <translation>Strukturmechanik</translation>
    </message>
    <message>
        <source>measurements</source>
        <translation>Messungen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Input check</source>
        <translation>Eingabeprüfung</translation>
    </message>
    <message>
        <source>No property is defined in &apos;%1&apos;.</source>
        <translation>In „%1“ ist keine Eigenschaft definiert.</translation>
    </message>
    <message>
        <source>Material property defined in &apos;%1&apos; has value equal or less than zero.</source>
        <translation>Eine in „%1“ definierte Materialeigenschaft hat einen Wert kleiner oder gleich null.</translation>
    </message>
</context>
<context>
    <name>StandardCommand</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
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
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>&amp;Unterdrücken</translation>
    </message>
    <message>
        <source>U&amp;nsuppress</source>
        <translation>Unterdrückung auf&amp;heben</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm schließen</translation>
    </message>
    <message>
        <source>&amp;Project explorer</source>
        <translation>&amp;Projektbaum</translation>
    </message>
    <message>
        <source>Show or hide the project explorer</source>
        <translation>Den Projektbaum ein- oder ausblenden</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>Show or hide the properties</source>
        <translation>Die Eigenschaften ein- oder ausblenden</translation>
    </message>
    <message>
        <source>&amp;Messages</source>
        <translation>&amp;Meldungen</translation>
    </message>
    <message>
        <source>Show or hide the messages</source>
        <translation>Die Meldungen ein- oder ausblenden</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>Meldungen &amp;leeren</translation>
    </message>
    <message>
        <source>Empty the message log</source>
        <translation>Das Meldungsprotokoll leeren</translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation>&amp;Nebeneinander</translation>
    </message>
    <message>
        <source>Show all document windows side by side</source>
        <translation>Alle Dokumentfenster nebeneinander zeigen</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>Ü&amp;berlappend</translation>
    </message>
    <message>
        <source>Show the document windows one behind the other</source>
        <translation>Die Dokumentfenster hintereinander zeigen</translation>
    </message>
    <message>
        <source>Ta&amp;bs</source>
        <translation>&amp;Reiter</translation>
    </message>
    <message>
        <source>Show the document windows as tabs</source>
        <translation>Die Dokumentfenster als Reiter zeigen</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the document window in front</source>
        <translation>Das vorderste Dokumentfenster schließen</translation>
    </message>
    <message>
        <source>Close &amp;all</source>
        <translation>&amp;Alle schließen</translation>
    </message>
    <message>
        <source>Close all document windows</source>
        <translation>Alle Dokumentfenster schließen</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Copy the selected objects</source>
        <translation>Ausgewählte Objekte kopieren</translation>
    </message>
    <message>
        <source>Add the copied objects to the project</source>
        <translation>Kopierte Objekte zum Projekt hinzufügen</translation>
    </message>
    <message>
        <source>Add a copy of each selected object</source>
        <translation>Eine Kopie jedes ausgewählten Objekts hinzufügen</translation>
    </message>
    <message>
        <source>Select all objects of the project</source>
        <translation>Alle Objekte des Projekts auswählen</translation>
    </message>
    <message>
        <source>&amp;Hand over to the solver</source>
        <translation>An den Solver &amp;übergeben</translation>
    </message>
    <message>
        <source>Hand the data of the project over to the solver</source>
        <translation>Die Daten des Projekts an den Solver übergeben</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Delete objects</source>
        <translation>Objekte löschen</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected objects</source>
        <translation>Die ausgewählten Objekte löschen</translation>
    </message>
    <message>
        <source>&amp;Close project</source>
        <translation>Projekt s&amp;chließen</translation>
    </message>
    <message>
        <source>These objects refer to the objects to be deleted, and lose the references: %1.
Delete anyway?</source>
        <translation>Diese Objekte verweisen auf die zu löschenden Objekte und verlieren die Verweise: %1.
Trotzdem löschen?</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Letzte Änderung rückgängig machen</translation>
    </message>
    <message>
        <source>Redo the change that was undone last</source>
        <translation>Zuletzt rückgängig gemachte Änderung wiederherstellen</translation>
    </message>
    <message>
        <source>Close the selected project, or the project of the selected object</source>
        <translation>Das ausgewählte Projekt oder das Projekt des ausgewählten Objekts schließen</translation>
    </message>
    <message>
        <source>Suppress the selected objects: they are not used, but not deleted</source>
        <translation>Ausgewählte Objekte unterdrücken: Sie werden nicht verwendet, aber nicht gelöscht</translation>
    </message>
    <message>
        <source>End the suppression of the selected objects</source>
        <translation>Unterdrückung der ausgewählten Objekte aufheben</translation>
    </message>
    <message>
        <source>Show information about the program</source>
        <translation>Informationen über das Programm anzeigen</translation>
    </message>
    <message>
        <source>Give the selected object or project another name</source>
        <translation>Dem ausgewählten Objekt oder Projekt einen anderen Namen geben</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>&amp;Farbe...</translation>
    </message>
    <message>
        <source>Choose the color of the selected objects</source>
        <translation>Die Farbe der ausgewählten Objekte wählen</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Werkzeugleisten</translation>
    </message>
    <message>
        <source>Show or hide toolbars</source>
        <translation>Werkzeugleisten ein- oder ausblenden</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the next part of the window</source>
        <translation>Tastaturfokus in den nächsten Teil des Fensters setzen</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>V&amp;origer Bereich</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the previous part of the window</source>
        <translation>Tastaturfokus in den vorigen Teil des Fensters setzen</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Sp&amp;rache</translation>
    </message>
    <message>
        <source>Choose the language of the program</source>
        <translation>Die Sprache des Programms wählen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was handed over to the solver.</source>
        <translation>„%1“ wurde an den Solver übergeben.</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>Show only the objects that match an expression</source>
        <translation>Nur die Objekte zeigen, die zu einem Ausdruck passen</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>E&amp;instellungen...</translation>
    </message>
    <message>
        <source>Choose the settings of the program</source>
        <translation>Wählt die Einstellungen des Programms</translation>
    </message>
    <message>
        <source>F&amp;ind...</source>
        <translation>&amp;Suchen...</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>&amp;Material</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>&amp;Workbench</source>
        <translation>&amp;Arbeitsbereich</translation>
    </message>
    <message>
        <source>%1 (below)</source>
        <translation>%1 (unten)</translation>
    </message>
</context>
<context>
    <name>desktop::Batch</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>%1 takes at most one argument, the file that it asks for</source>
        <translation>%1 nimmt höchstens ein Argument, die Datei, nach der es fragt</translation>
    </message>
    <message>
        <source>%1 cannot be done now</source>
        <translation>%1 ist jetzt nicht möglich</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>es gibt kein solches Projekt</translation>
    </message>
    <message>
        <source>one file name is needed</source>
        <translation>ein Dateiname wird gebraucht</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the library has no material &quot;%1&quot;</source>
        <translation>die Bibliothek hat kein Material „%1“</translation>
    </message>
    <message>
        <source>the catalogue has no quantity &quot;%1&quot;</source>
        <translation>der Katalog hat keine Größe „%1“</translation>
    </message>
    <message>
        <source>one selected material is needed</source>
        <translation>ein ausgewähltes Material wird gebraucht</translation>
    </message>
    <message>
        <source>there is no material project</source>
        <translation>es gibt kein Materialprojekt</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; would be read as &quot;%2&quot;; &quot;%3&quot; would be ignored; give the value without it</source>
        <translation>der Wert „%1“ würde als „%2“ gelesen; „%3“ würde ignoriert; geben Sie den Wert ohne diesen Teil an</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; is not a finite number</source>
        <translation>der Wert „%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>the material project &quot;%1&quot; is open; close it first with select-project and Mat_DelDoc</source>
        <translation>das Materialprojekt „%1“ ist geöffnet; schließen Sie es zuerst mit select-project und Mat_DelDoc</translation>
    </message>
    <message>
        <source>Mat_Export needs one argument, the name of the file to write</source>
        <translation>Mat_Export benötigt ein Argument, den Namen der zu schreibenden Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no property &quot;%2&quot;</source>
        <translation>„%1“ hat keine Eigenschaft „%2“</translation>
    </message>
    <message>
        <source>no project is open</source>
        <translation>es ist kein Projekt geöffnet</translation>
    </message>
    <message>
        <source>give the name of a library material, and select exactly one material</source>
        <translation>geben Sie den Namen eines Bibliotheksmaterials an und wählen Sie genau ein Material aus</translation>
    </message>
    <message>
        <source>give a quantity and its value, and select exactly one material</source>
        <translation>geben Sie eine Größe und ihren Wert an und wählen Sie genau ein Material aus</translation>
    </message>
    <message>
        <source>arguments are not allowed here</source>
        <translation>hier sind keine Argumente erlaubt</translation>
    </message>
    <message>
        <source>the current project has no object with the label &quot;%1&quot;</source>
        <translation>das aktuelle Projekt hat kein Objekt mit der Bezeichnung „%1“</translation>
    </message>
    <message>
        <source>give the name of a property and a value, and select exactly one object</source>
        <translation>geben Sie den Namen einer Eigenschaft und einen Wert an und wählen Sie genau ein Objekt aus</translation>
    </message>
    <message>
        <source>give a label, and select exactly one object</source>
        <translation>geben Sie eine Bezeichnung an und wählen Sie genau ein Objekt aus</translation>
    </message>
    <message>
        <source>select exactly one object, and give no argument</source>
        <translation>wählen Sie genau ein Objekt aus und geben Sie kein Argument an</translation>
    </message>
    <message>
        <source>Mat_Import reads no files; import an exchange document with Std_ImportDocument</source>
        <translation>Mat_Import liest keine Dateien; importieren Sie ein Austauschdokument mit Std_ImportDocument</translation>
    </message>
    <message>
        <source>nothing is selected that %1 acts on</source>
        <translation>nichts ist ausgewählt, worauf %1 wirkt</translation>
    </message>
    <message>
        <source>one selected material project is needed</source>
        <translation>ein ausgewähltes Materialprojekt wird gebraucht</translation>
    </message>
    <message>
        <source>the dialog &quot;%1&quot; needs a user</source>
        <translation>das Dialogfenster „%1“ braucht einen Benutzer</translation>
    </message>
    <message>
        <source>the program was not closed</source>
        <translation>das Programm wurde nicht beendet</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the list is longer than 64 MiB</source>
        <translation>die Liste ist länger als 64 MiB</translation>
    </message>
    <message>
        <source>the list is not UTF-8</source>
        <translation>die Liste ist nicht UTF-8</translation>
    </message>
    <message>
        <source>the program has been closed by Std_Quit; no line may follow</source>
        <translation>das Programm wurde mit Std_Quit beendet; danach darf keine Zeile stehen</translation>
    </message>
    <message>
        <source>the line contains a zero character</source>
        <translation>die Zeile enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>%1 needs one argument, the name of a file</source>
        <translation>%1 braucht ein Argument, den Namen einer Datei</translation>
    </message>
    <message>
        <source>%1 did not use the argument &quot;%2&quot;</source>
        <translation>%1 hat das Argument „%2“ nicht verwendet</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>die Standardausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>give one unit system at most, and make a material project the current one</source>
        <translation>geben Sie höchstens ein Einheitensystem an und machen Sie ein Materialprojekt zum aktuellen</translation>
    </message>
    <message>
        <source>%1 is not a picture and is not replaced; give another name</source>
        <translation>%1 ist kein Bild und wird nicht ersetzt; geben Sie einen anderen Namen an</translation>
    </message>
    <message>
        <source>the catalogue has no quantity &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>der Katalog hat keine Größe „%1“; meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of &quot;%2&quot;: give red, green, blue and opacity as four numbers from 0 to 1, &quot;0.5, 0, 0, 1&quot;</source>
        <translation>„%1“ ist kein Wert von „%2“: Geben Sie Rot, Grün, Blau und Deckkraft als vier Zahlen von 0 bis 1 an, „0.5, 0, 0, 1“</translation>
    </message>
    <message>
        <source>give a solver, the name of the file to write, and the unit system of the deck if it is not that of the project</source>
        <translation>geben Sie einen Solver, den Namen der zu schreibenden Datei und das Einheitensystem der Solverdatei an, wenn es nicht das des Projekts ist</translation>
    </message>
    <message>
        <source>there is no solver &quot;%1&quot;; the solvers are: %2</source>
        <translation>es gibt keinen Solver „%1“; die Solver sind: %2</translation>
    </message>
    <message>
        <source>give the name of a document or deck, and the unit system of its numbers if it is not SI or declared</source>
        <translation>geben Sie den Namen eines Dokuments oder einer Solverdatei an, und das Einheitensystem der Zahlen, wenn es nicht SI oder angegeben ist</translation>
    </message>
</context>
<context>
    <name>desktop::CellReading</name>
    <message>
        <source>Type numbers, separated by commas.</source>
        <translation>Geben Sie Zahlen ein, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Type numbers in %1, or with a unit, separated by commas.</source>
        <translation>Geben Sie Zahlen in %1 oder mit einer Einheit ein, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Type a number.</source>
        <translation>Geben Sie eine Zahl ein.</translation>
    </message>
    <message>
        <source>Type a number in %1, or with a unit.</source>
        <translation>Geben Sie eine Zahl in %1 oder mit einer Einheit ein.</translation>
    </message>
    <message>
        <source>%1 numbers: %2, ..., %3</source>
        <translation>%1 Zahlen: %2, ..., %3</translation>
    </message>
    <message>
        <source>%1 (pure number)</source>
        <translation>%1 (reine Zahl)</translation>
    </message>
</context>
<context>
    <name>desktop::DeckDialog</name>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Export for solver</source>
        <translation>Für Solver exportieren</translation>
    </message>
    <message>
        <source>&amp;All materials of the project (%1)</source>
        <translation>&amp;Alle Materialien des Projekts (%1)</translation>
    </message>
    <message>
        <source>Only the &amp;selected ones (%1)</source>
        <translation>Nur die aus&amp;gewählten (%1)</translation>
    </message>
    <message>
        <source>Beginning of the deck</source>
        <translation>Anfang der Solverdatei</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Units of the deck:</source>
        <translation>&amp;Einheiten der Solverdatei:</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>&amp;Bericht:</translation>
    </message>
    <message>
        <source>The deck cannot be shown</source>
        <translation>Die Solverdatei kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The deck is being made...</source>
        <translation>Die Solverdatei wird erstellt...</translation>
    </message>
    <message>
        <source>The project has no materials.</source>
        <translation>Das Projekt hat keine Materialien.</translation>
    </message>
    <message>
        <source>The base units cannot be read.</source>
        <translation>Die Basiseinheiten können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>&amp;Vorschau:</translation>
    </message>
    <message>
        <source>&amp;Preview (the first %1 of %2 lines):</source>
        <translation>&amp;Vorschau (die ersten %1 von %2 Zeilen):</translation>
    </message>
    <message>
        <source>The deck cannot be made: %1</source>
        <translation>Die Solverdatei kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>The materials cannot be exported</source>
        <translation>Die Materialien können nicht exportiert werden</translation>
    </message>
    <message>
        <source>&amp;Preview (long lines are cut after %1 characters):</source>
        <translation>&amp;Vorschau (lange Zeilen sind nach %1 Zeichen abgeschnitten):</translation>
    </message>
    <message>
        <source>&amp;Preview (the first %1 of %2 lines, long lines cut after %3 characters):</source>
        <translation>&amp;Vorschau (die ersten %1 von %2 Zeilen, lange nach %3 Zeichen abgeschnitten):</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>F&amp;orm:</translation>
    </message>
</context>
<context>
    <name>desktop::DeckExport</name>
    <message>
        <source>Export for solver</source>
        <translation>Für Solver exportieren</translation>
    </message>
    <message>
        <source>The deck contains only applied changes.</source>
        <translation>Die Solverdatei enthält nur angewendete Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Export without them</source>
        <translation>Ohne sie &amp;exportieren</translation>
    </message>
    <message>
        <source>Materials written to &quot;%1&quot; for %2 in %3: %4.</source>
        <translation>Materialien für %2 in %3 nach „%1“ geschrieben: %4.</translation>
    </message>
    <message>
        <source>Suppressed materials among them: %1.</source>
        <translation>Davon unterdrückt: %1.</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Replace it by a deck?</source>
        <translation>Durch eine Solverdatei ersetzen?</translation>
    </message>
    <message>
        <source>The materials were not exported.</source>
        <translation>Die Materialien wurden nicht exportiert.</translation>
    </message>
    <message>
        <source>A deck carries no data that a project keeps beside its materials. Not written: %1.</source>
        <translation>Eine Solverdatei enthält keine Daten, die ein Projekt neben seinen Materialien aufbewahrt. Nicht geschrieben: %1.</translation>
    </message>
</context>
<context>
    <name>desktop::DeckImport</name>
    <message>
        <source>This deck of %1 has no materials.</source>
        <translation>Diese Datei von %1 hat keine Materialien.</translation>
    </message>
    <message>
        <source>The numbers look like %1, not %2.</source>
        <translation>Die Zahlen sehen nach %1 aus, nicht nach %2.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Further losses are not listed: %1.</source>
        <translation>Weitere Verluste sind nicht aufgeführt: %1.</translation>
    </message>
</context>
<context>
    <name>desktop::DeckPreview</name>
    <message>
        <source>In %1, they would be unusual. %2</source>
        <translation>In %1 wären sie ungewöhnlich. %2</translation>
    </message>
    <message>
        <source>The numbers look like %1. In %2, they would be unusual. %3</source>
        <translation>Die Zahlen sehen nach %1 aus. In %2 wären sie ungewöhnlich. %3</translation>
    </message>
    <message>
        <source>Findings: %1, doubts: %2</source>
        <translation>Befunde: %1, Zweifel: %2</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Befunde: %1</translation>
    </message>
    <message>
        <source>Doubts: %1</source>
        <translation>Zweifel: %1</translation>
    </message>
</context>
<context>
    <name>desktop::DeckReportModel</name>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Quantities</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
</context>
<context>
    <name>desktop::DeckReportView</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
</context>
<context>
    <name>desktop::EditorWatch</name>
    <message>
        <source>The values of an editor cannot be checked</source>
        <translation>Die Werte eines Editors können nicht geprüft werden</translation>
    </message>
    <message>
        <source>The changes in an editor cannot be recorded</source>
        <translation>Die Änderungen in einem Editor können nicht aufgezeichnet werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied: no property has changed.</source>
        <translation>„%1“ wurde übernommen: keine Eigenschaft hat sich geändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied. Properties added: %2, changed: %3, removed: %4.</source>
        <translation>„%1“ wurde übernommen. Eigenschaften hinzugefügt: %2, geändert: %3, entfernt: %4.</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read. %4</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ kann nicht gelesen werden. %4</translation>
    </message>
    <message>
        <source>Convert values</source>
        <translation>Werte umrechnen</translation>
    </message>
</context>
<context>
    <name>desktop::GuideView</name>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>The file %1 of the guide cannot be read. Install the program again.</source>
        <translation>Die Datei %1 der Anleitung kann nicht gelesen werden. Installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>überall</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>moves between the fields of a part</source>
        <translation>wechselt zwischen den Feldern eines Teils</translation>
    </message>
    <message>
        <source>explorer</source>
        <translation>Explorer</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabetaste</translation>
    </message>
    <message>
        <source>opens the material</source>
        <translation>öffnet das Material</translation>
    </message>
    <message>
        <source>page headers of an editor</source>
        <translation>Seitentitel eines Editors</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>opens the page</source>
        <translation>öffnet die Seite</translation>
    </message>
    <message>
        <source>lists of an editor</source>
        <translation>Listen eines Editors</translation>
    </message>
    <message>
        <source>selects a library material; checks or unchecks a quantity</source>
        <translation>wählt ein Material der Bibliothek; setzt oder entfernt das Häkchen einer Größe</translation>
    </message>
    <message>
        <source>table of an editor</source>
        <translation>Tabelle eines Editors</translation>
    </message>
    <message>
        <source>F2 or Return, then Return or Escape</source>
        <translation>F2 oder Eingabetaste, dann Eingabetaste oder Esc</translation>
    </message>
    <message>
        <source>edits the value of the row; keeps or discards the text</source>
        <translation>bearbeitet den Wert der Zeile; behält oder verwirft den Text</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Y</source>
        <translation>Strg+Z, Strg+Y</translation>
    </message>
    <message>
        <source>undoes and redoes changes that have not been applied</source>
        <translation>macht nicht übernommene Änderungen rückgängig und stellt sie wieder her</translation>
    </message>
    <message>
        <source>guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>closes the guide</source>
        <translation>schließt die Anleitung</translation>
    </message>
    <message>
        <source>Keys in the parts of the window</source>
        <translation>Tasten in den Teilen des Fensters</translation>
    </message>
</context>
<context>
    <name>desktop::ImportDeckDialog</name>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Import deck</source>
        <translation>Solverdatei importieren</translation>
    </message>
    <message>
        <source>The deck cannot be shown</source>
        <translation>Die Solverdatei kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a deck of %2. Materials: %3</source>
        <translation>„%1“ ist eine Solverdatei für %2. Materialien: %3</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>&amp;Bericht:</translation>
    </message>
    <message>
        <source>Each number in the file has its unit.</source>
        <translation>Jede Zahl in der Datei hat ihre Einheit.</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file declares:</source>
        <translation>&amp;Einheitensystem der Zahlen, das die Datei angibt:</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file does not say:</source>
        <translation>&amp;Einheitensystem der Zahlen, das die Datei nicht angibt:</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file does not say. They look like %1:</source>
        <translation>&amp;Einheitensystem der Zahlen, das die Datei nicht angibt. Sie sehen nach %1 aus:</translation>
    </message>
    <message>
        <source>Choose the unit system; then the report is shown.</source>
        <translation>Wählen Sie das Einheitensystem; dann wird der Bericht gezeigt.</translation>
    </message>
    <message>
        <source>The deck is being read...</source>
        <translation>Die Solverdatei wird gelesen...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a deck of %2.</source>
        <translation>„%1“ ist eine Solverdatei für %2.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>&amp;Materials:</source>
        <translation>&amp;Materialien:</translation>
    </message>
    <message>
        <source>The numbers are usual in several unit systems, so that none is proposed.</source>
        <translation>Die Zahlen sind in mehreren Einheitensystemen üblich; deshalb wird keines vorgeschlagen.</translation>
    </message>
    <message>
        <source>Materials with findings: %1.</source>
        <translation>Materialien mit Befunden: %1.</translation>
    </message>
    <message>
        <source>The file has changed and was read again. Check the report before you import it.</source>
        <translation>Die Datei hat sich geändert und wurde neu gelesen. Prüfen Sie den Bericht, bevor Sie sie importieren.</translation>
    </message>
    <message>
        <source>Materials with doubts: %1.</source>
        <translation>Materialien mit Zweifeln: %1.</translation>
    </message>
</context>
<context>
    <name>desktop::ImportUnitsDialog</name>
    <message>
        <source>Import exchange document</source>
        <translation>Austauschdokument importieren</translation>
    </message>
    <message>
        <source>The numbers in &quot;%1&quot; look like %2.</source>
        <translation>Die Zahlen in „%1“ sehen nach %2 aus.</translation>
    </message>
    <message>
        <source>&amp;Convert from %1</source>
        <translation>Von %1 &amp;umrechnen</translation>
    </message>
    <message>
        <source>&amp;Import as they are</source>
        <translation>&amp;Unverändert importieren</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: these numbers were not converted, because their units are not known: %2</source>
        <translation>„%1“: Diese Zahlen wurden nicht umgerechnet, weil ihre Einheiten nicht bekannt sind: %2</translation>
    </message>
    <message>
        <source>The numbers were converted from %1 to the units of the catalogue. Materials: %2</source>
        <translation>Die Zahlen wurden von %1 in die Einheiten des Katalogs umgerechnet. Materialien: %2</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers in &quot;%1&quot;:</source>
        <translation>&amp;Einheitensystem der Zahlen in „%1“:</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>In %1, they would be unusual. %2</source>
        <translation>In %1 wären sie ungewöhnlich. %2</translation>
    </message>
    <message>
        <source>The numbers look like %1, not %2. Import the document again in this unit system; in a list of commands, the second argument of Std_ImportDocument gives it.</source>
        <translation>Die Zahlen sehen nach %1 aus, nicht nach %2. Importieren Sie das Dokument noch einmal in diesem Einheitensystem; in einer Befehlsliste gibt es das zweite Argument von Std_ImportDocument an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the numbers look like %2, not %3.</source>
        <translation>„%1“: Die Zahlen sehen nach %2 aus, nicht nach %3.</translation>
    </message>
</context>
<context>
    <name>desktop::KeptEdits</name>
    <message>
        <source>Changes that were not applied cannot be shown again</source>
        <translation>Nicht übernommene Änderungen können nicht wieder angezeigt werden</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCheck</name>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>All materials of &quot;%1&quot; are ready (%2 checked).</source>
        <translation>Alle Materialien von „%1“ sind bereit (%2 geprüft).</translation>
    </message>
    <message>
        <source>Not ready in &quot;%1&quot;: %2 of %3 materials. Findings: %4.</source>
        <translation>Nicht bereit in „%1“: %2 von %3 Materialien. Befunde: %4.</translation>
    </message>
    <message>
        <source>Changes in open editors that are not applied were not checked: %1.</source>
        <translation>Nicht übernommene Änderungen in offenen Editoren wurden nicht geprüft: %1.</translation>
    </message>
    <message>
        <source>Further findings are not listed: %1.</source>
        <translation>Weitere Befunde sind nicht aufgeführt: %1.</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCounts</name>
    <message>
        <source>The materials cannot be counted</source>
        <translation>Die Materialien können nicht gezählt werden</translation>
    </message>
    <message>
        <source>Materials: %1, selected: %2, not ready: %3</source>
        <translation>Materialien: %1, ausgewählt: %2, nicht bereit: %3</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialExport</name>
    <message>
        <source>&quot;%1&quot;: An exchange document carries no words and lists. Not written: %2.</source>
        <translation>„%1“: Ein Austauschdokument enthält keine Wörter und Listen. Nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; of &quot;%2&quot; is %3. An exchange document contains only finite numbers. Change the value, then export again.</source>
        <translation>Der Wert von „%1“ von „%2“ ist %3. Ein Austauschdokument enthält nur endliche Zahlen. Ändern Sie den Wert und exportieren Sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. Choose another name.</source>
        <translation>„%1“ ist keine gewöhnliche Datei. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Materials written to &quot;%1&quot;: %2.</source>
        <translation>In „%1“ geschriebene Materialien: %2.</translation>
    </message>
    <message>
        <source>Suppressed materials among them: %1.</source>
        <translation>Davon unterdrückt: %1.</translation>
    </message>
    <message>
        <source>The export to &quot;%1&quot; is not complete: %2 Export again to another place.</source>
        <translation>Der Export nach „%1“ ist unvollständig: %2 Exportieren Sie erneut an einen anderen Ort.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; of &quot;%2&quot; has the number %3. Readers of exchange documents refuse numbers below 0. Make the material again without this property, then export again.</source>
        <translation>Die Eigenschaft „%1“ von „%2“ hat die Nummer %3. Leser von Austauschdokumenten lehnen Nummern unter 0 ab. Legen Sie das Material ohne diese Eigenschaft noch einmal an und exportieren Sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: An exchange document carries no data that a project keeps beside a material. Not written: %2.</source>
        <translation>„%1“: Ein Austauschdokument enthält keine Daten, die ein Projekt neben einem Material aufbewahrt. Nicht geschrieben: %2.</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialFiles</name>
    <message>
        <source>Documents and decks</source>
        <translation>Dokumente und Solverdateien</translation>
    </message>
    <message>
        <source>Exchange documents</source>
        <translation>Austauschdokumente</translation>
    </message>
    <message>
        <source>Decks of solvers</source>
        <translation>Solverdateien</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialGuards</name>
    <message>
        <source>New material project</source>
        <translation>Neues Materialprojekt</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and make a new one?</source>
        <translation>Es kann nur ein Materialprojekt zugleich verwendet werden. „%1“ schließen und ein neues anlegen?</translation>
    </message>
    <message>
        <source>No material project is open. Open one, then export it.</source>
        <translation>Es ist kein Materialprojekt geöffnet. Öffnen Sie eines und exportieren Sie es dann.</translation>
    </message>
    <message>
        <source>Export materials</source>
        <translation>Materialien exportieren</translation>
    </message>
    <message>
        <source>&amp;Export without them</source>
        <translation>Ohne sie &amp;exportieren</translation>
    </message>
    <message>
        <source>Edit materials</source>
        <translation>Materialien bearbeiten</translation>
    </message>
    <message>
        <source>Materials selected: %1. At most %2 can be opened at a time. Select fewer.</source>
        <translation>Ausgewählte Materialien: %1. Höchstens %2 können auf einmal geöffnet werden. Wählen Sie weniger aus.</translation>
    </message>
    <message>
        <source>Open %1 editors?</source>
        <translation>%1 Editoren öffnen?</translation>
    </message>
    <message>
        <source>Material projects that are open: %1. Only one project can be exported. Close the other projects first.</source>
        <translation>Geöffnete Materialprojekte: %1. Es kann nur ein Projekt exportiert werden. Schließen Sie zuerst die anderen Projekte.</translation>
    </message>
    <message>
        <source>The export contains only applied changes.</source>
        <translation>Der Export enthält nur angewendete Änderungen.</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and open &quot;%2&quot;?</source>
        <translation>Es kann nur ein Materialprojekt gleichzeitig verwendet werden. „%1“ schließen und „%2“ öffnen?</translation>
    </message>
    <message>
        <source>&amp;Close and open</source>
        <translation>S&amp;chließen und öffnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>„%1“ ist die Datei des Projekts „%2“, das geöffnet ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>„%1“ wird von %2 verwendet.</translation>
    </message>
    <message>
        <source>Replace it by an exchange document?</source>
        <translation>Durch ein Austauschdokument ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a project file.</source>
        <translation>„%1“ ist eine Projektdatei.</translation>
    </message>
</context>
<context>
    <name>desktop::ProjectFiles</name>
    <message>
        <source>The project has no numbers left for so many materials.</source>
        <translation>Das Projekt hat für so viele Materialien keine Nummern mehr.</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>„%1“ importieren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>„%1“ wird von %2 verwendet.</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>File in use</source>
        <translation>Datei in Verwendung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>„%1“ ist die Datei des Projekts „%2“, das geöffnet ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program, on %2.</source>
        <translation>„%1“ wurde am %2 von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Save without them</source>
        <translation>&amp;Ohne sie speichern</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The changes of the project &quot;%1&quot; have not been saved.</source>
        <translation>Die Änderungen des Projekts „%1“ wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Changes in open editors have not been applied.</source>
        <translation>Änderungen in geöffneten Editoren wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>No copy for recovery could be kept: %1</source>
        <translation>Es konnte keine Kopie zur Wiederherstellung angelegt werden: %1</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>The program ended before projects were saved.</source>
        <translation>Das Programm endete, bevor Projekte gespeichert waren.</translation>
    </message>
    <message>
        <source>There are copies from %1.</source>
        <translation>Es gibt Kopien vom %1.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be recovered.</source>
        <translation>„%1“ kann nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Objects imported: %1</source>
        <translation>Importierte Objekte: %1</translation>
    </message>
    <message>
        <source>The content of &quot;%1&quot; is kept, but no module can read it.</source>
        <translation>Der Inhalt von „%1“ bleibt erhalten, aber kein Modul kann ihn lesen.</translation>
    </message>
    <message>
        <source>The content of the object &quot;%1&quot; of the class &quot;%2&quot; cannot be read: %3</source>
        <translation>Der Inhalt des Objekts „%1“ der Klasse „%2“ kann nicht gelesen werden: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) of &quot;%1&quot; cannot be made.</source>
        <translation>
            <numerusform>%n Verknüpfung von „%1“ kann nicht hergestellt werden.</numerusform>
            <numerusform>%n Verknüpfungen von „%1“ können nicht hergestellt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>These properties of &quot;%1&quot; are kept, but cannot be set: %2.</source>
        <translation>Diese Eigenschaften von „%1“ bleiben erhalten, können aber nicht gesetzt werden: %2.</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>Projekt (*.vxmat)</translation>
    </message>
    <message>
        <source>The message log gives the reason.</source>
        <translation>Das Meldungsprotokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; of the class &quot;%2&quot; cannot be added to the project. The message log gives the reason.</source>
        <translation>Das Objekt „%1“ der Klasse „%2“ kann nicht zum Projekt hinzugefügt werden. Das Meldungsprotokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>The module of these classes is missing: %1. Their objects are kept unchanged.</source>
        <translation>Das Modul dieser Klassen fehlt: %1. Ihre Objekte bleiben unverändert erhalten.</translation>
    </message>
    <message>
        <source>If both programs save the file, the later save replaces the earlier one.</source>
        <translation>Wenn beide Programme die Datei speichern, ersetzt die spätere Fassung die frühere.</translation>
    </message>
    <message>
        <source>&amp;Use anyway</source>
        <translation>&amp;Trotzdem verwenden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was last changed on %2, before the project was recovered.</source>
        <translation>„%1“ wurde zuletzt am %2 geändert, vor der Wiederherstellung des Projekts.</translation>
    </message>
    <message>
        <source>Replacing the file deletes its present content.</source>
        <translation>Beim Ersetzen geht der jetzige Inhalt der Datei verloren.</translation>
    </message>
    <message>
        <source>The file contains only applied changes.</source>
        <translation>Die Datei enthält nur angewendete Änderungen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is shown as &quot;%2&quot;.</source>
        <translation>Das Projekt „%1“ wird als „%2“ angezeigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file. No module that imports such documents is loaded.</source>
        <translation>„%1“ ist ein Austauschdokument, keine Projektdatei. Kein Modul ist geladen, das solche Dokumente importiert.</translation>
    </message>
    <message>
        <source>If this program no longer runs, take over its lock. If it runs:</source>
        <translation>Wenn dieses Programm nicht mehr läuft, übernehmen Sie seine Sperre. Wenn es läuft:</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>&quot;Save&quot; applies them first.</source>
        <translation>„Speichern“ übernimmt sie zuerst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file.</source>
        <translation>„%1“ ist ein Austauschdokument, keine Projektdatei.</translation>
    </message>
    <message>
        <source>Import its content into a new project?</source>
        <translation>Seinen Inhalt in ein neues Projekt importieren?</translation>
    </message>
    <message>
        <source>Import its content into the project &quot;%1&quot;?</source>
        <translation>Seinen Inhalt in das Projekt „%1“ importieren?</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder.</source>
        <translation>HOME ist nicht der Name eines Ordners.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now &quot;%2&quot;</source>
        <translation>„%1“ heißt jetzt „%2“</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Objects with a label that was in use have got another one: %1.</source>
        <translation>Objekte mit einer bereits vergebenen Bezeichnung haben eine andere erhalten: %1.</translation>
    </message>
    <message>
        <source>Objects imported: %1, with another label: %2</source>
        <translation>Objekte importiert: %1, mit anderer Bezeichnung: %2</translation>
    </message>
</context>
<context>
    <name>desktop::ProjectUnitsDialog</name>
    <message>
        <source>Show &quot;%1&quot; in the units of the preferences</source>
        <translation>„%1“ in den Einheiten der Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Show &quot;%1&quot; in %2</source>
        <translation>„%1“ in %2 zeigen</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>&amp;Unit system in which &quot;%1&quot; is shown:</source>
        <translation>&amp;Einheitensystem, in dem „%1“ gezeigt wird:</translation>
    </message>
    <message>
        <source>The values do not change, nor do the documents and cards of the solver.</source>
        <translation>Die Werte ändern sich nicht, ebenso wenig die Dokumente und Karten des Solvers.</translation>
    </message>
    <message>
        <source>The units cannot be set</source>
        <translation>Die Einheiten können nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>desktop::Sessions</name>
    <message>
        <source>Changes of a project cannot be determined</source>
        <translation>Die Änderungen eines Projekts können nicht ermittelt werden</translation>
    </message>
</context>
<context>
    <name>desktop::UnappliedEdits</name>
    <message>
        <source>The changes of &quot;%1&quot; in its editor have not been applied.</source>
        <translation>Die Änderungen von „%1“ in seinem Editor wurden nicht übernommen.</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied are shown in its editor again.</source>
        <translation>Die nicht übernommenen Änderungen von „%1“ stehen wieder in seinem Editor.</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied cannot be shown again.</source>
        <translation>Die nicht übernommenen Änderungen von „%1“ können nicht wieder gezeigt werden.</translation>
    </message>
</context>
<context>
    <name>desktop::UnitChoice</name>
    <message>
        <source>As in the preferences (%1)</source>
        <translation>Wie in den Einstellungen (%1)</translation>
    </message>
    <message>
        <source>Own base units</source>
        <translation>Eigene Basiseinheiten</translation>
    </message>
    <message>
        <source>Unit system</source>
        <translation>Einheitensystem</translation>
    </message>
    <message>
        <source>Base units</source>
        <translation>Basiseinheiten</translation>
    </message>
    <message>
        <source>Stress in %1, density in %2, thermal conductivity in %3</source>
        <translation>Spannung in %1, Dichte in %2, Wärmeleitfähigkeit in %3</translation>
    </message>
    <message>
        <source>As the project (%1)</source>
        <translation>Wie das Projekt (%1)</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Noch nicht gewählt</translation>
    </message>
</context>
<context>
    <name>desktop::UnitsDisplay</name>
    <message>
        <source>The unit system cannot be shown</source>
        <translation>Das Einheitensystem kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Units: %1</source>
        <translation>Einheiten: %1</translation>
    </message>
    <message>
        <source>own</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is shown in %2. &quot;Project &gt; Units&quot; changes this.</source>
        <translation>„%1“ wird in %2 gezeigt. „Projekt &gt; Einheiten“ ändert das.</translation>
    </message>
    <message>
        <source>The unit system of the project &quot;%1&quot; cannot be read: %2</source>
        <translation>Das Einheitensystem des Projekts „%1“ kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>desktop::UnitsPage</name>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>&amp;Unit system of projects:</source>
        <translation>&amp;Einheitensystem von Projekten:</translation>
    </message>
    <message>
        <source>Projects that have no unit system of their own are shown in it. &quot;Project &gt; Units&quot; gives a project its own.</source>
        <translation>Projekte ohne eigenes Einheitensystem werden darin gezeigt. „Projekt &gt; Einheiten“ gibt einem Projekt ein eigenes.</translation>
    </message>
</context>
<context>
    <name>desktop::ValuesOfDeckModel</name>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
</context>
<context>
    <name>kelta</name>
    <message>
        <source>No module was found in %1.</source>
        <translation>In %1 wurde kein Modul gefunden.</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder. The settings of this run are not stored.</source>
        <translation>HOME ist nicht der Name eines Ordners. Die Einstellungen dieses Laufs werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. The settings of this run are not stored.</source>
        <translation>„%1“ ist keine gewöhnliche Datei. Die Einstellungen dieses Laufs werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; is damaged or cannot be read. Settings that cannot be read have their defaults.</source>
        <translation>Die Einstellungsdatei „%1“ ist beschädigt oder nicht lesbar. Nicht lesbare Einstellungen haben ihre Vorgabewerte.</translation>
    </message>
</context>
<context>
    <name>projectfile::ExchangeImport</name>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>ein Feld</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>eine ganze Zahl von 0 bis 4294967295</translation>
    </message>
    <message>
        <source>%1: is %2; %3 is needed</source>
        <translation>%1: ist %2; nötig ist %3</translation>
    </message>
    <message>
        <source>material %1 &quot;%2&quot;: %3</source>
        <translation>Material %1 „%2“: %3</translation>
    </message>
    <message>
        <source>property %1: %2</source>
        <translation>Eigenschaft %1: %2</translation>
    </message>
    <message>
        <source>property %1 &quot;%2&quot;: %3</source>
        <translation>Eigenschaft %1 „%2“: %3</translation>
    </message>
    <message>
        <source>the document has no number for it, which is read as 0</source>
        <translation>das Dokument hat keine Zahl dafür, was als 0 gelesen wird</translation>
    </message>
    <message>
        <source>its key is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the key of the document was kept</source>
        <translation>ihr Schlüssel ist „%1“ im Dokument und „%2“ im Katalog; der des Dokuments wurde behalten</translation>
    </message>
    <message>
        <source>its name is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the name of the document was kept</source>
        <translation>ihr Name ist „%1“ im Dokument und „%2“ im Katalog; der des Dokuments wurde behalten</translation>
    </message>
    <message>
        <source>documents carry no words; &quot;%1&quot; of the catalogue was taken</source>
        <translation>Dokumente übertragen keine Wörter; „%1“ aus dem Katalog wurde genommen</translation>
    </message>
    <message>
        <source>documents carry no lists; it is empty</source>
        <translation>Dokumente übertragen keine Listen; sie ist leer</translation>
    </message>
    <message>
        <source>the document has it more than once; the last one was used</source>
        <translation>sie steht zweimal im Dokument; die letzte wurde genommen</translation>
    </message>
    <message>
        <source>the document has no number for it; it was given the number %1</source>
        <translation>das Dokument hat keine Nummer dafür; es bekam die Nummer %1</translation>
    </message>
    <message>
        <source>its number in the document is %1, which a later material has too; it was given the number %2</source>
        <translation>seine Nummer im Dokument ist %1 wie die eines späteren Materials; es bekam die Nummer %2</translation>
    </message>
    <message>
        <source>its number in the document is %1, which no object can have; it was given the number %2</source>
        <translation>seine Nummer im Dokument ist %1, die kein Objekt haben kann; es bekam die Nummer %2</translation>
    </message>
    <message>
        <source>the document has no name for it</source>
        <translation>das Dokument hat keinen Namen dafür</translation>
    </message>
    <message>
        <source>it is a project file, which needs no import</source>
        <translation>das ist eine Projektdatei, die keinen Import braucht</translation>
    </message>
    <message>
        <source>an analysis document holds no materials; give the material document</source>
        <translation>ein Analysedokument enthält keine Materialien; nötig ist das Materialdokument</translation>
    </message>
    <message>
        <source>it is not a material document: &quot;proj_type&quot; must be 2</source>
        <translation>das ist kein Materialdokument: „proj_type“ muss 2 sein</translation>
    </message>
    <message>
        <source>the document holds no materials</source>
        <translation>das Dokument enthält keine Materialien</translation>
    </message>
    <message>
        <source>%1: occurs more than once; the last one was used</source>
        <translation>%1: kommt mehrfach vor; das letzte wurde verwendet</translation>
    </message>
    <message>
        <source>it is not in the catalogue; its unit, description and category are lost</source>
        <translation>sie ist nicht im Katalog; ihre Einheit, Beschreibung und Kategorie sind verloren</translation>
    </message>
    <message>
        <source>Further doubts are not listed: %1.</source>
        <translation>Weitere Zweifel sind nicht aufgeführt: %1.</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file was written by a later version of the program, in version %1 of the format; this program reads up to version %2.</source>
        <translation>Die Datei wurde von einer neueren Version des Programms geschrieben, in Version %1 des Formats; dieses Programm liest bis Version %2.</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>ein Feld</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must not be empty</source>
        <translation>„%1“ darf nicht leer sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which contains a zero character</source>
        <translation>„%1“ ist %2 und enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is 0 but must be from 1 to 4294967295</source>
        <translation>„%1“ ist 0, muss aber zwischen 1 und 4294967295 liegen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the number of %3 too</source>
        <translation>„%1“ ist %2; diese Nummer hat auch %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the name of %3 too</source>
        <translation>„%1“ ist %2; diesen Namen hat auch %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be from %3 to %4, because object numbers are not reused</source>
        <translation>„%1“ ist %2, muss aber zwischen %3 und %4 liegen, weil Objektnummern nicht wiederverwendet werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>„%1“ muss ein Objekt sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array</source>
        <translation>„%1“ muss ein Feld sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>„%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but the object itself has %3</source>
        <translation>„%1“ ist %2, aber das Objekt selbst hat %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the number of an object</source>
        <translation>„%1“ muss die Nummer eines Objekts sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but &quot;materials&quot; and &quot;objects&quot; have no such object</source>
        <translation>„%1“ ist %2, aber „materials“ und „objects“ enthalten kein solches Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice</source>
        <translation>„%1“ ist %2, das mehrfach vorkommt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is object %2, which &quot;database.objects.object&quot; does not have</source>
        <translation>„%1“ ist das Objekt %2, das in „database.objects.object“ fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but %3 in the database; %2 is used.</source>
        <translation>„%1“ ist %2, in der Datenbank aber %3; verwendet wird %2.</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, the object itself.</source>
        <translation>„%1“ ist %2, das Objekt selbst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but there is no such object.</source>
        <translation>„%1“ ist %2, aber ein solches Objekt gibt es nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice.</source>
        <translation>„%1“ ist %2, das mehrfach vorkommt.</translation>
    </message>
    <message>
        <source>This is not a project file: its member &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>Dies ist keine Projektdatei: Ihr Eintrag „format“ ist nicht „%1“.</translation>
    </message>
    <message>
        <source>an array of objects</source>
        <translation>ein Feld von Objekten</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>ein Feld von Zahlen</translation>
    </message>
    <message>
        <source>an array of the numbers of objects</source>
        <translation>ein Feld von Objektnummern</translation>
    </message>
    <message>
        <source>an array of four numbers: red, green, blue and opacity</source>
        <translation>ein Feld von vier Zahlen: Rot, Grün, Blau und Deckkraft</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>eine Zahl von 0 bis 1</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>a whole number of 32 bits</source>
        <translation>eine ganze Zahl von 32 Bit</translation>
    </message>
    <message>
        <source>the number of an object, from 1 to 4294967295</source>
        <translation>die Nummer eines Objekts, von 1 bis 4294967295</translation>
    </message>
    <message>
        <source>the number of the next object, from 1 to 4294967296</source>
        <translation>die Nummer des nächsten Objekts, von 1 bis 4294967296</translation>
    </message>
    <message>
        <source>the number of a category, 0 to 9</source>
        <translation>die Nummer einer Kategorie, 0 bis 9</translation>
    </message>
    <message>
        <source>the version of the format, a whole number from 1</source>
        <translation>die Version des Formats, eine ganze Zahl ab 1</translation>
    </message>
    <message>
        <source>The text is %1 but must be %2</source>
        <translation>Der Text ist %1, muss aber %2 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be %3</source>
        <translation>„%1“ ist %2, muss aber %3 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but objects of this class belong in &quot;materials&quot;</source>
        <translation>„%1“ ist %2, aber Objekte dieser Klasse gehören in „materials“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out; the label of the object is %2.</source>
        <translation>„%1“ wird weggelassen; die Bezeichnung des Objekts ist %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is in another group or contains this group.</source>
        <translation>„%1“ ist %2, das in einer anderen Gruppe ist oder diese Gruppe enthält.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is nested in too many groups.</source>
        <translation>„%1“ ist %2, das in zu vielen Gruppen verschachtelt ist.</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectStore</name>
    <message>
        <source>The file is too large for a project.</source>
        <translation>Die Datei ist für ein Projekt zu groß.</translation>
    </message>
    <message>
        <source>The file is too large for the memory.</source>
        <translation>Die Datei ist für den Speicher zu groß.</translation>
    </message>
    <message>
        <source>Another program changed the file while it was read. Try again.</source>
        <translation>Ein anderes Programm hat die Datei geändert, während sie gelesen wurde. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The name of a file is empty.</source>
        <translation>Der Name einer Datei ist leer.</translation>
    </message>
    <message>
        <source>This is a folder; a file is needed.</source>
        <translation>Dies ist ein Ordner; gebraucht wird eine Datei.</translation>
    </message>
    <message>
        <source>This is a device or a pipe; a file is needed.</source>
        <translation>Dies ist ein Gerät oder eine Pipe; gebraucht wird eine Datei.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; does not exist.</source>
        <translation>Der Ordner „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a file; a folder is needed.</source>
        <translation>„%1“ ist eine Datei; gebraucht wird ein Ordner.</translation>
    </message>
    <message>
        <source>%1 (%2 on %3)</source>
        <translation>%1 (%2 auf %3)</translation>
    </message>
    <message>
        <source>Its lock file &apos;%1&apos; is not a regular file. Remove it.</source>
        <translation>Ihre Sperrdatei „%1“ ist keine gewöhnliche Datei. Entfernen Sie sie.</translation>
    </message>
</context>
<context>
    <name>vxCAE::SolverCard</name>
    <message>
        <source>elasticity</source>
        <translation>Elastizität</translation>
    </message>
    <message>
        <source>plasticity</source>
        <translation>Plastizität</translation>
    </message>
    <message>
        <source>visco-elasticity</source>
        <translation>Viskoelastizität</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>Kriechen</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>specific heat</source>
        <translation>Spezifische Wärmekapazität</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>Wärmeleitfähigkeit</translation>
    </message>
</context>
<context>
    <name>vxConstitutive::Finding</name>
    <message>
        <source>%1: the constant %2 is missing. The model has no curve without it.</source>
        <translation>%1: Die Konstante %2 fehlt. Ohne sie hat das Modell keine Kurve.</translation>
    </message>
    <message>
        <source>%1: the constant %2 is %3. It must be a finite number.</source>
        <translation>%1: Die Konstante %2 ist %3. Sie muss eine endliche Zahl sein.</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio is %1. It must be greater than -1 and less than 0.5.</source>
        <translation>Die Querkontraktionszahl ist %1. Sie muss größer als -1 und kleiner als 0.5 sein.</translation>
    </message>
    <message>
        <source>C10 is %1 Pa, but half of Mu is %2 Pa. The curve uses C10. Remove one of the two constants.</source>
        <translation>C10 ist %1 Pa, die Hälfte von Mu aber %2 Pa. Die Kurve verwendet C10. Entfernen Sie eine der beiden Konstanten.</translation>
    </message>
    <message>
        <source>%1: D1 is 0, so the curve is incompressible. Some solvers do the same, others use a bulk modulus of 20 times the shear modulus. Remove D1 or give it a value.</source>
        <translation>%1: D1 ist 0, daher ist die Kurve inkompressibel. Manche Solver rechnen ebenso, andere mit einem Kompressionsmodul vom 20-Fachen des Schubmoduls. Entfernen Sie D1 oder geben Sie einen Wert an.</translation>
    </message>
    <message>
        <source>%1: D1 is %2 1/Pa. A bulk modulus cannot be negative. The curve is incompressible.</source>
        <translation>%1: D1 ist %2 1/Pa. Ein Kompressionsmodul kann nicht negativ sein. Die Kurve ist inkompressibel.</translation>
    </message>
    <message>
        <source>The bulk modulus is only %1 times the shear modulus (Poisson&apos;s ratio %2). For rubber it is some hundred times. Check D1.</source>
        <translation>Der Kompressionsmodul ist nur das %1-Fache des Schubmoduls (Querkontraktionszahl %2). Bei Gummi ist er einige hundert Mal so groß. Prüfen Sie D1.</translation>
    </message>
    <message>
        <source>The limiting stretch is %1. It must be greater than 1, which is the stretch of the chains at rest.</source>
        <translation>Die Grenzstreckung ist %1. Sie muss größer als 1 sein; das ist die Streckung der Ketten in Ruhe.</translation>
    </message>
    <message>
        <source>%1: the initial shear modulus is %2 Pa. It must be greater than 0; otherwise the material is unstable without any load.</source>
        <translation>%1: Der Anfangsschubmodul ist %2 Pa. Er muss größer als 0 sein, sonst ist das Material schon ohne Last instabil.</translation>
    </message>
    <message>
        <source>Mu, the factor of the series, is %1 Pa. The initial shear modulus is %2 Pa.</source>
        <translation>Mu, der Faktor der Reihe, ist %1 Pa. Der Anfangsschubmodul ist %2 Pa.</translation>
    </message>
    <message>
        <source>The catalogue has no constants for the hardening type &quot;%1&quot;, so there is no curve. Use Bilinear or Multilinear.</source>
        <translation>Der Katalog hat keine Konstanten für den Verfestigungstyp „%1“, daher gibt es keine Kurve. Verwenden Sie Bilinear oder Multilinear.</translation>
    </message>
    <message>
        <source>The hardening type &quot;%1&quot; is not known. Use Bilinear or Multilinear.</source>
        <translation>Der Verfestigungstyp „%1“ ist nicht bekannt. Verwenden Sie Bilinear oder Multilinear.</translation>
    </message>
    <message>
        <source>The yield type &quot;%1&quot; is not known. Use Mises, Mohr-Coulomb or Drucker-Prager.</source>
        <translation>Der Fließtyp „%1“ ist nicht bekannt. Verwenden Sie Mises, Mohr-Coulomb oder Drucker-Prager.</translation>
    </message>
    <message>
        <source>The stress falls from the plastic strain %1 on. A solver finds no unique solution there.</source>
        <translation>Ab der plastischen Dehnung %1 fällt die Spannung. Ein Solver findet dort keine eindeutige Lösung.</translation>
    </message>
    <message>
        <source>The hardening modulus %1 Pa is more than a tenth of Young&apos;s modulus %2 Pa. Check that it is the slope against plastic strain.</source>
        <translation>Der Verfestigungsmodul %1 Pa ist mehr als ein Zehntel des Elastizitätsmoduls %2 Pa. Prüfen Sie, ob er die Steigung über der plastischen Dehnung ist.</translation>
    </message>
    <message>
        <source>There are %1 yield stresses and %2 plastic strains. The values without a partner are left out.</source>
        <translation>Es gibt %1 Fließspannungen und %2 plastische Dehnungen. Werte ohne Partner werden weggelassen.</translation>
    </message>
    <message>
        <source>The first plastic strain is %1. A table must begin with 0. Some solvers shift it without a message.</source>
        <translation>Die erste plastische Dehnung ist %1. Eine Tabelle muss mit 0 beginnen. Manche Solver verschieben sie ohne Meldung.</translation>
    </message>
    <message>
        <source>Row %1: the plastic strain %2 is not greater than the one in the row before. The row is left out.</source>
        <translation>Zeile %1: Die plastische Dehnung %2 ist nicht größer als die der Zeile davor. Die Zeile wird weggelassen.</translation>
    </message>
    <message>
        <source>%1: the catalogue has no cohesion. Give a cohesion with the curve, or read the curve in multiples of the cohesion.</source>
        <translation>%1: Der Katalog hat keine Kohäsion. Geben Sie eine zur Kurve an, oder lesen Sie die Kurve in Vielfachen der Kohäsion.</translation>
    </message>
    <message>
        <source>The plastic viscosity is %1. Solver cards have a cohesion in its place. No curve uses it.</source>
        <translation>Die plastische Viskosität ist %1. Solverkarten haben an ihrer Stelle eine Kohäsion. Keine Kurve verwendet sie.</translation>
    </message>
    <message>
        <source>Drucker-Prager: the catalogue does not say which cone belongs to the friction angle. The curve shows three cones: through the compression meridian, through the extension meridian, and for plane strain.</source>
        <translation>Drucker-Prager: Der Katalog sagt nicht, welcher Kegel zum Reibungswinkel gehört. Die Kurve zeigt drei Kegel: durch den Druckmeridian, durch den Zugmeridian und für ebene Verzerrung.</translation>
    </message>
    <message>
        <source>%1: the catalogue has no dilation angle. Solvers need one.</source>
        <translation>%1: Der Katalog hat keinen Dilatanzwinkel. Solver brauchen einen.</translation>
    </message>
    <message>
        <source>The friction angle is %1 degrees. It must be at least 0 and less than 90.</source>
        <translation>Der Reibungswinkel ist %1 Grad. Er muss mindestens 0 und kleiner als 90 sein.</translation>
    </message>
    <message>
        <source>The friction angle is taken as %1 degrees. If it is in radians, multiply it by 57.3.</source>
        <translation>Der Reibungswinkel wird als %1 Grad gelesen. Ist er im Bogenmaß angegeben, multiplizieren Sie ihn mit 57.3.</translation>
    </message>
    <message>
        <source>The time exponent m is %1. The rate form needs -1 &lt; m &lt;= 0. A value between 0 and 1 belongs to the total form, whose exponent is m + 1.</source>
        <translation>Der Zeitexponent m ist %1. Die Ratenform braucht -1 &lt; m &lt;= 0. Ein Wert zwischen 0 und 1 gehört zur Gesamtform, deren Exponent m + 1 ist.</translation>
    </message>
    <message>
        <source>The stress exponent n is %1. It must be greater than 0.</source>
        <translation>Der Spannungsexponent n ist %1. Er muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>The creep constant A is %1 in Pa and s. CalculiX replaces a value below 1e-20 by 1e-20. Write its input in MPa.</source>
        <translation>Die Kriechkonstante A ist %1 in Pa und s. CalculiX ersetzt einen Wert unter 1e-20 durch 1e-20. Schreiben Sie die Eingabe in MPa.</translation>
    </message>
    <message>
        <source>The relaxing part of the shear modulus is %1. It must be at least 0 and less than 1.</source>
        <translation>Der relaxierende Teil des Schubmoduls ist %1. Er muss mindestens 0 und kleiner als 1 sein.</translation>
    </message>
    <message>
        <source>The shear relaxation modulus is %1. It is taken as the relaxing part of the shear modulus, which must be less than 1. Divide a modulus in Pa by the shear modulus.</source>
        <translation>Der Schubrelaxationsmodul ist %1. Er wird als relaxierender Teil des Schubmoduls gelesen, der kleiner als 1 sein muss. Teilen Sie einen Modul in Pa durch den Schubmodul.</translation>
    </message>
    <message>
        <source>%1: without Young&apos;s modulus and Poisson&apos;s ratio, some curves are missing or are multiples of a modulus.</source>
        <translation>%1: Ohne Elastizitätsmodul und Querkontraktionszahl fehlen manche Kurven oder sind Vielfache eines Moduls.</translation>
    </message>
    <message>
        <source>%2 has no response in the mode %1.</source>
        <translation>%2 hat keine Antwort in der Versuchsart %1.</translation>
    </message>
    <message>
        <source>%1: the material is unstable from %2 on by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1: Das Material ist nach dem Kriterium von Drucker ab %2 instabil. Ein Solver kann dort versagen.</translation>
    </message>
    <message>
        <source>The curve has strains up to %1. Linear elasticity is valid for strains below 0.05.</source>
        <translation>Die Kurve hat Dehnungen bis %1. Lineare Elastizität gilt für Dehnungen unter 0.05.</translation>
    </message>
    <message>
        <source>%1: the chains reach their limiting stretch at %2, inside the range up to %3. The five-term series has no limit there.</source>
        <translation>%1: Die Ketten erreichen ihre Grenzstreckung bei %2, innerhalb des Bereichs bis %3. Die fünfgliedrige Reihe hat dort keine Grenze.</translation>
    </message>
    <message>
        <source>At %1, the chains are at %3 of their limiting stretch. The five-term series is %2 % below the inverse Langevin function.</source>
        <translation>Bei %1 sind die Ketten bei %3 ihrer Grenzstreckung. Die fünfgliedrige Reihe liegt %2 % unter der inversen Langevin-Funktion.</translation>
    </message>
    <message>
        <source>The curve is incompressible, but the material has a D1. With D1 the stress differs by a factor of up to %1, at the stretch %2.</source>
        <translation>Die Kurve ist inkompressibel, das Material hat aber ein D1. Mit D1 weicht die Spannung bis zum Faktor %1 ab, bei der Streckung %2.</translation>
    </message>
    <message>
        <source>%1: an incompressible material has no volumetric response. Give D1 or Poisson&apos;s ratio, and do not request an incompressible curve.</source>
        <translation>%1: Ein inkompressibles Material hat keine volumetrische Antwort. Geben Sie D1 oder die Querkontraktionszahl an und fordern Sie keine inkompressible Kurve an.</translation>
    </message>
    <message>
        <source>The bar necks at the engineering strain %1, where the engineering stress is largest: %2 Pa (Considere).</source>
        <translation>Der Stab schnürt sich bei der technischen Dehnung %1 ein, wo die technische Spannung am größten ist: %2 Pa (Considère).</translation>
    </message>
    <message>
        <source>A creep curve needs at least one stress.</source>
        <translation>Eine Kriechkurve braucht mindestens eine Spannung.</translation>
    </message>
    <message>
        <source>After the last row, from the plastic strain %1 on, the stress stays constant, as in solvers.</source>
        <translation>Nach der letzten Zeile, ab der plastischen Dehnung %1, bleibt die Spannung konstant wie in Solvern.</translation>
    </message>
    <message>
        <source>%1: the cohesion is not known. Pressure and Mises stress are multiples of it.</source>
        <translation>%1: Die Kohäsion ist nicht bekannt. Druck und Mises-Spannung sind Vielfache von ihr.</translation>
    </message>
    <message>
        <source>The instantaneous shear modulus is not known. The curve is a multiple of it.</source>
        <translation>Der Sofort-Schubmodul ist nicht bekannt. Die Kurve ist ein Vielfaches davon.</translation>
    </message>
    <message>
        <source>The data are not text: byte %1 is a character that text does not have. Export the data as CSV.</source>
        <translation>Die Daten sind kein Text: Byte %1 ist ein Zeichen, das in Text nicht vorkommt. Exportieren Sie die Daten als CSV.</translation>
    </message>
    <message>
        <source>No line has two numbers. A test needs a column such as strain, stretch or time, and a column such as stress.</source>
        <translation>Keine Zeile hat zwei Zahlen. Ein Versuch braucht eine Spalte wie Dehnung, Streckung oder Zeit und eine Spalte wie Spannung.</translation>
    </message>
    <message>
        <source>Each line has only one number. If there are more, give the separator.</source>
        <translation>Jede Zeile hat nur eine Zahl. Wenn es mehr sind, geben Sie das Trennzeichen an.</translation>
    </message>
    <message>
        <source>The numbers have decimal commas.</source>
        <translation>Die Zahlen haben Dezimalkommas.</translation>
    </message>
    <message>
        <source>Commas are read as decimal commas, but they may group thousands: &quot;%1&quot;. Give the decimal mark.</source>
        <translation>Kommas werden als Dezimalkommas gelesen, könnten aber Tausender gruppieren: „%1“. Geben Sie das Dezimalzeichen an.</translation>
    </message>
    <message>
        <source>No column was found for: %1. Choose a column.</source>
        <translation>Es wurde keine Spalte gefunden für: %1. Wählen Sie eine Spalte.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot;: choose its meaning: %2.</source>
        <translation>Spalte „%1“: Wählen Sie ihre Bedeutung: %2.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has no unit. Give one.</source>
        <translation>Spalte „%1“ hat keine Einheit. Geben Sie eine an.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot;: the unit &quot;%2&quot; is not known or does not fit. Give another unit.</source>
        <translation>Spalte „%1“: Die Einheit „%2“ ist nicht bekannt oder passt nicht. Geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>A creep curve needs the stress of the test. Give the stress.</source>
        <translation>Eine Kriechkurve braucht die Spannung des Versuchs. Geben Sie die Spannung an.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; does not say whether it is true or engineering. It is taken as %2.</source>
        <translation>Spalte „%1“ sagt nicht, ob sie wahre oder technische Werte hat. Sie wird gelesen als: %2.</translation>
    </message>
    <message>
        <source>Several columns fit. Column &quot;%1&quot; is used.</source>
        <translation>Mehrere Spalten passen. Spalte „%1“ wird verwendet.</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot;: all measured values are 0.</source>
        <translation>Versuch „%1“: Alle Messwerte sind 0.</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has no usable point.</source>
        <translation>Versuch „%1“ hat keinen brauchbaren Punkt.</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has %2 points. The fit uses %3 averages of neighbours.</source>
        <translation>Versuch „%1“ hat %2 Punkte. Die Anpassung verwendet %3 Mittelwerte von Nachbarn.</translation>
    </message>
    <message>
        <source>%1: there are no data for a fit of this model.</source>
        <translation>%1: Es gibt keine Daten für eine Anpassung dieses Modells.</translation>
    </message>
    <message>
        <source>%1: there are %2 points, no more than constants. The error cannot be estimated.</source>
        <translation>%1: Es gibt %2 Punkte, nicht mehr als Konstanten. Der Fehler kann nicht geschätzt werden.</translation>
    </message>
    <message>
        <source>The data do not determine %1. They determine only %2. Add another kind of test.</source>
        <translation>Die Daten bestimmen %1 nicht. Sie bestimmen nur %2. Fügen Sie eine andere Art von Versuch hinzu.</translation>
    </message>
    <message>
        <source>%1 has no influence on these tests. Its value is arbitrary. Add another kind of test, or hold it fixed.</source>
        <translation>%1 hat keinen Einfluss auf diese Versuche. Der Wert ist willkürlich. Fügen Sie eine andere Art von Versuch hinzu, oder halten Sie ihn fest.</translation>
    </message>
    <message>
        <source>%1 is poorly determined: its standard error is %2 % of its value.</source>
        <translation>%1 ist schlecht bestimmt: Der Standardfehler ist %2 % des Wertes.</translation>
    </message>
    <message>
        <source>%1 is at its bound %2. The best fit is beyond it.</source>
        <translation>%1 ist an der Schranke %2. Die beste Anpassung liegt jenseits davon.</translation>
    </message>
    <message>
        <source>The limiting stretch tends to infinity: the data, with chain stretches up to %1, show no stiffening. Use a model without a limiting stretch.</source>
        <translation>Die Grenzstreckung strebt gegen unendlich: Die Daten, mit Kettenstreckungen bis %1, zeigen keine Versteifung. Verwenden Sie ein Modell ohne Grenzstreckung.</translation>
    </message>
    <message>
        <source>Stability over the range raises the residual from %2 to %1.</source>
        <translation>Stabilität über den Bereich erhöht den Restfehler von %2 auf %1.</translation>
    </message>
    <message>
        <source>%1: the constants are not stable over the whole requested range.</source>
        <translation>%1: Die Konstanten sind nicht im ganzen verlangten Bereich stabil.</translation>
    </message>
    <message>
        <source>%1: no constants of a stable material come near the data. Check the signs, units and modes of the tests.</source>
        <translation>%1: Keine Konstanten eines stabilen Materials kommen den Daten nahe. Prüfen Sie Vorzeichen, Einheiten und Arten der Versuche.</translation>
    </message>
    <message>
        <source>%1: the fit was cancelled.</source>
        <translation>%1: Die Anpassung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The stress falls by up to %1 % of its largest value while the plastic strain rises. Neighbours are averaged so that it does not fall.</source>
        <translation>Die Spannung fällt bei steigender plastischer Dehnung um bis zu %1 % ihres größten Wertes. Nachbarn werden gemittelt, damit sie nicht fällt.</translation>
    </message>
    <message>
        <source>%2 points after the largest force, at the engineering strain %1, are left out because the bar necks there.</source>
        <translation>%2 Punkte nach der größten Kraft, bei der technischen Dehnung %1, werden weggelassen, weil sich der Stab dort einschnürt.</translation>
    </message>
    <message>
        <source>Young&apos;s modulus %1 Pa is taken from the first part of the curve. Give it if it is known.</source>
        <translation>Der Elastizitätsmodul %1 Pa wird dem ersten Teil der Kurve entnommen. Geben Sie ihn an, wenn er bekannt ist.</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has no elastic part for Young&apos;s modulus. Give Young&apos;s modulus.</source>
        <translation>Versuch „%1“ hat keinen elastischen Teil für den Elastizitätsmodul. Geben Sie den Elastizitätsmodul an.</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; does not reach the offset yield stress.</source>
        <translation>Versuch „%1“ erreicht die Dehngrenze nicht.</translation>
    </message>
    <message>
        <source>In the volumetric tests, the stress opposes the change of volume. D1 is not fitted. Check the sign of the stress.</source>
        <translation>In den Volumenversuchen wirkt die Spannung der Volumenänderung entgegen. D1 wird nicht angepasst. Prüfen Sie das Vorzeichen der Spannung.</translation>
    </message>
    <message>
        <source>Creep rates are left out because there are creep curves.</source>
        <translation>Kriechraten werden weggelassen, weil es Kriechkurven gibt.</translation>
    </message>
    <message>
        <source>All creep data are at one stress, which does not determine the exponent n. Add another stress, or hold n fixed.</source>
        <translation>Alle Kriechdaten sind bei einer Spannung, die den Exponenten n nicht bestimmt. Fügen Sie eine andere Spannung hinzu, oder halten Sie n fest.</translation>
    </message>
    <message>
        <source>The relaxation time %1 s is outside the measured times, %2 s to %3 s.</source>
        <translation>Die Relaxationszeit %1 s liegt außerhalb der gemessenen Zeiten, %2 s bis %3 s.</translation>
    </message>
    <message>
        <source>%4: the model has no value at %3 of the points. At the first of them, the %1 is %2.</source>
        <translation>%4: Das Modell hat an %3 der Punkte keinen Wert. Am ersten davon ist %1 %2.</translation>
    </message>
    <message>
        <source>%4: no finite value exists at %3 of the points. At the first of them, the %1 is %2. The constants or the range are too large, or the chains are at their limit.</source>
        <translation>%4: An %3 der Punkte gibt es keinen endlichen Wert. Am ersten davon ist %1 %2. Die Konstanten oder der Bereich sind zu groß, oder die Ketten sind an ihrer Grenze.</translation>
    </message>
    <message>
        <source>%4: there is no equilibrium at %3 of the points. At the first of them, the %1 is %2. There the material resists a change of volume too little to keep the lateral surface free of stress. Check D1.</source>
        <translation>%4: An %3 der Punkte gibt es kein Gleichgewicht. Am ersten davon ist %1 %2. Dort widersetzt sich das Material einer Volumenänderung zu wenig, um die Seitenflächen spannungsfrei zu halten. Prüfen Sie D1.</translation>
    </message>
    <message>
        <source>%1: the library of the solver cannot be loaded: %2. Install the program again.</source>
        <translation>%1: Die Bibliothek des Lösers kann nicht geladen werden: %2. Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The model has no value at %3 points. At the first of them, the %1 is %2.</source>
        <translation>Das Modell hat an %3 Punkten keinen Wert. Am ersten davon ist %1 %2.</translation>
    </message>
    <message>
        <source>No finite value exists at %3 points. At the first of them, the %1 is %2. The constants or the range are too large, the chains are at their limit, or there is no equilibrium.</source>
        <translation>An %3 Punkten gibt es keinen endlichen Wert. Am ersten davon ist %1 %2. Die Konstanten oder der Bereich sind zu groß, die Ketten sind an ihrer Grenze, oder es gibt kein Gleichgewicht.</translation>
    </message>
    <message>
        <source>%1: the material is unstable below the %3 %2 by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1: Das Material ist nach Druckers Kriterium instabil, wenn die Größe „%3“ kleiner als %2 ist. Ein Solver kann dort scheitern.</translation>
    </message>
    <message>
        <source>%1: the material is unstable above the %3 %2 by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1: Das Material ist nach Druckers Kriterium instabil, wenn die Größe „%3“ größer als %2 ist. Ein Solver kann dort scheitern.</translation>
    </message>
    <message>
        <source>The creep strain reaches %1 at the stress %2 Pa. No creep law is valid for strains above 1. Check the range, and the units of the creep constants.</source>
        <translation>Die Kriechdehnung erreicht %1 bei der Spannung %2 Pa. Kein Kriechgesetz gilt für Dehnungen über 1. Prüfen Sie den Bereich und die Einheiten der Kriechkonstanten.</translation>
    </message>
    <message>
        <source>Lines between or after the numbers that are left out, because they are not numbers: %1. The first is line %2.</source>
        <translation>Zeilen zwischen oder nach den Zahlen, die weggelassen werden, weil sie keine Zahlen sind: %1. Die erste ist Zeile %2.</translation>
    </message>
    <message>
        <source>Lines with a cell that is not a number or belongs to no column: %1. The first is line %2.</source>
        <translation>Zeilen mit einer Zelle, die keine Zahl ist oder zu keiner Spalte gehört: %1. Die erste ist Zeile %2.</translation>
    </message>
    <message>
        <source>Points with a smaller abscissa than the point before: %1.</source>
        <translation>Punkte mit kleinerer Abszisse als der Punkt davor: %1.</translation>
    </message>
    <message>
        <source>Points that repeat another point: %1.</source>
        <translation>Punkte, die einen anderen wiederholen: %1.</translation>
    </message>
    <message>
        <source>Points in compression or below 0: %1.</source>
        <translation>Punkte im Druckbereich oder unter 0: %1.</translation>
    </message>
    <message>
        <source>Points that are left out, because they are incomplete or outside the domain of the test: %1.</source>
        <translation>Punkte, die weggelassen werden, weil sie unvollständig sind oder außerhalb des Bereichs des Versuchs liegen: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must have the form CONSTANT=LOWER:UPPER or CONSTANT=VALUE.</source>
        <translation>„%1“ muss die Form KONSTANTE=UNTERE:OBERE oder KONSTANTE=WERT haben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a constant of these models; they have %2.</source>
        <translation>„%1“ ist keine Konstante dieser Modelle; sie haben %2.</translation>
    </message>
    <message>
        <source>%1: the lower bound is above the upper one.</source>
        <translation>%1: Die untere Grenze liegt über der oberen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The fit is incompressible. With the D1 of the material, the bulk modulus is %1 times the shear modulus (Poisson&apos;s ratio %2).</source>
        <translation>Die Anpassung ist inkompressibel. Mit dem D1 des Materials ist der Kompressionsmodul das %1-Fache des Schubmoduls (Querkontraktionszahl %2).</translation>
    </message>
    <message>
        <source>The fit is incompressible, but the D1 of the material contradicts it: the bulk modulus would be only %1 times the shear modulus (Poisson&apos;s ratio %2). For rubber it is some hundred times.</source>
        <translation>Die Anpassung ist inkompressibel, aber das D1 des Materials widerspricht ihr: Der Kompressionsmodul wäre nur das %1-Fache des Schubmoduls (Querkontraktionszahl %2). Bei Gummi ist er einige hundert Mal so groß.</translation>
    </message>
    <message>
        <source>%1: the constant %2 is %3 in SI units. It must be greater than 0.</source>
        <translation>%1: Die Konstante %2 ist %3 in SI-Einheiten. Sie muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>There is no yield surface below the pressure %1 Pa, which is its apex.</source>
        <translation>Unterhalb des Drucks %1 Pa, der ihre Spitze ist, gibt es keine Fließfläche.</translation>
    </message>
    <message>
        <source>There is no yield surface below the pressure of %1 times the cohesion, which is its apex.</source>
        <translation>Unterhalb eines Drucks vom %1-Fachen der Kohäsion, der ihre Spitze ist, gibt es keine Fließfläche.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has %2 stresses, each of which is a creep test. Choose one of them.</source>
        <translation>Spalte „%1“ hat %2 Spannungen, von denen jede ein Kriechversuch ist. Wählen Sie eine aus.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has the stress of the creep test, but no unit of stress. Write the unit behind its name, or give the stress.</source>
        <translation>Spalte „%1“ hat die Spannung des Kriechversuchs, aber keine Einheit einer Spannung. Schreiben Sie die Einheit hinter den Namen, oder geben Sie die Spannung an.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has more than %2 different stresses, but a creep test has a constant one. Give the stress.</source>
        <translation>Spalte „%1“ hat mehr als %2 verschiedene Spannungen, aber ein Kriechversuch hat eine gleichbleibende. Geben Sie die Spannung an.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has several stresses, but none is %2 Pa.</source>
        <translation>Spalte „%1“ hat mehrere Spannungen, aber keine davon ist %2 Pa.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has the stress %2 Pa, but %3 Pa is given and used.</source>
        <translation>Spalte „%1“ hat die Spannung %2 Pa, aber %3 Pa ist angegeben und wird verwendet.</translation>
    </message>
    <message>
        <source>Young&apos;s modulus of the first part of the curve is %1 Pa. It differs by %3 % from the given %2 Pa, with which the elastic part is taken off.</source>
        <translation>Der Elastizitätsmodul des ersten Teils der Kurve ist %1 Pa. Er weicht um %3 % von den angegebenen %2 Pa ab, mit denen der elastische Anteil abgezogen wird.</translation>
    </message>
    <message>
        <source>The residual is less than that of %1 (%3 instead of %2), but not by so much that %5 free constants are better than %4.</source>
        <translation>Der Restfehler ist kleiner als der von %1 (%3 statt %2), aber nicht um so viel, dass %5 freie Konstanten besser sind als %4.</translation>
    </message>
    <message>
        <source>The residual is less than that of %1 (%3 instead of %2), but the data do not determine all constants well, or the model is not as stable as requested.</source>
        <translation>Der Restfehler ist kleiner als der von %1 (%3 statt %2), aber die Daten bestimmen nicht alle Konstanten gut, oder das Modell ist nicht so stabil wie verlangt.</translation>
    </message>
</context>
<context>
    <name>vxConstitutive::Word</name>
    <message>
        <source>linear elasticity</source>
        <translation>lineare Elastizität</translation>
    </message>
    <message>
        <source>Neo-Hookean</source>
        <translation>Neo-Hooke</translation>
    </message>
    <message>
        <source>Mooney-Rivlin</source>
        <translation>Mooney-Rivlin</translation>
    </message>
    <message>
        <source>Mooney-Rivlin with C11</source>
        <translation>Mooney-Rivlin mit C11</translation>
    </message>
    <message>
        <source>Arruda-Boyce</source>
        <translation>Arruda-Boyce</translation>
    </message>
    <message>
        <source>Mises plasticity</source>
        <translation>Mises-Plastizität</translation>
    </message>
    <message>
        <source>Drucker-Prager</source>
        <translation>Drucker-Prager</translation>
    </message>
    <message>
        <source>Mohr-Coulomb</source>
        <translation>Mohr-Coulomb</translation>
    </message>
    <message>
        <source>Norton creep</source>
        <translation>Norton-Kriechen</translation>
    </message>
    <message>
        <source>visco-elasticity</source>
        <translation>Viskoelastizität</translation>
    </message>
    <message>
        <source>multilinear hardening</source>
        <translation>multilineare Verfestigung</translation>
    </message>
    <message>
        <source>bilinear hardening</source>
        <translation>bilineare Verfestigung</translation>
    </message>
    <message>
        <source>uniaxial tension and compression</source>
        <translation>einachsiger Zug und Druck</translation>
    </message>
    <message>
        <source>equibiaxial tension</source>
        <translation>gleichmäßig zweiachsiger Zug</translation>
    </message>
    <message>
        <source>planar tension (pure shear)</source>
        <translation>ebener Zug (reiner Schub)</translation>
    </message>
    <message>
        <source>simple shear</source>
        <translation>einfache Scherung</translation>
    </message>
    <message>
        <source>volumetric</source>
        <translation>volumetrisch</translation>
    </message>
    <message>
        <source>hardening curve</source>
        <translation>Verfestigungskurve</translation>
    </message>
    <message>
        <source>tensile test</source>
        <translation>Zugversuch</translation>
    </message>
    <message>
        <source>yield surface</source>
        <translation>Fließfläche</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>Kriechen</translation>
    </message>
    <message>
        <source>creep rate</source>
        <translation>Kriechrate</translation>
    </message>
    <message>
        <source>shear relaxation</source>
        <translation>Schubrelaxation</translation>
    </message>
    <message>
        <source>shear creep</source>
        <translation>Scherkriechen</translation>
    </message>
    <message>
        <source>storage and loss</source>
        <translation>Speicherung und Verlust</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>Streckung</translation>
    </message>
    <message>
        <source>amount of shear</source>
        <translation>Schiebung</translation>
    </message>
    <message>
        <source>engineering strain</source>
        <translation>technische Dehnung</translation>
    </message>
    <message>
        <source>plastic strain</source>
        <translation>plastische Dehnung</translation>
    </message>
    <message>
        <source>pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>stress</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>nominal stress</source>
        <translation>Nennspannung</translation>
    </message>
    <message>
        <source>true stress</source>
        <translation>wahre Spannung</translation>
    </message>
    <message>
        <source>nominal shear stress</source>
        <translation>Nennschubspannung</translation>
    </message>
    <message>
        <source>true shear stress</source>
        <translation>wahre Schubspannung</translation>
    </message>
    <message>
        <source>normal stress difference</source>
        <translation>Normalspannungsdifferenz</translation>
    </message>
    <message>
        <source>slope</source>
        <translation>Steigung</translation>
    </message>
    <message>
        <source>lateral stretch</source>
        <translation>Querstreckung</translation>
    </message>
    <message>
        <source>volume ratio</source>
        <translation>Volumenverhältnis</translation>
    </message>
    <message>
        <source>Mises stress</source>
        <translation>Mises-Spannung</translation>
    </message>
    <message>
        <source>Mises stress, compression meridian</source>
        <translation>Mises-Spannung, Druckmeridian</translation>
    </message>
    <message>
        <source>Mises stress, extension meridian</source>
        <translation>Mises-Spannung, Zugmeridian</translation>
    </message>
    <message>
        <source>Mises stress, outer cone</source>
        <translation>Mises-Spannung, äußerer Kegel</translation>
    </message>
    <message>
        <source>Mises stress, inner cone</source>
        <translation>Mises-Spannung, innerer Kegel</translation>
    </message>
    <message>
        <source>Mises stress, plane strain</source>
        <translation>Mises-Spannung, ebene Verzerrung</translation>
    </message>
    <message>
        <source>creep strain</source>
        <translation>Kriechdehnung</translation>
    </message>
    <message>
        <source>creep strain rate</source>
        <translation>Kriechdehnrate</translation>
    </message>
    <message>
        <source>relaxation modulus</source>
        <translation>Relaxationsmodul</translation>
    </message>
    <message>
        <source>creep compliance</source>
        <translation>Kriechnachgiebigkeit</translation>
    </message>
    <message>
        <source>storage modulus</source>
        <translation>Speichermodul</translation>
    </message>
    <message>
        <source>loss modulus</source>
        <translation>Verlustmodul</translation>
    </message>
    <message>
        <source>loss factor</source>
        <translation>Verlustfaktor</translation>
    </message>
    <message>
        <source>%1 / cohesion</source>
        <translation>%1 / Kohäsion</translation>
    </message>
    <message>
        <source>%1 / shear modulus</source>
        <translation>%1 / Schubmodul</translation>
    </message>
    <message>
        <source>%1 x shear modulus</source>
        <translation>%1 x Schubmodul</translation>
    </message>
    <message>
        <source>%1 at %2 Pa</source>
        <translation>%1 bei %2 Pa</translation>
    </message>
    <message>
        <source>%1 at %2 s</source>
        <translation>%1 bei %2 s</translation>
    </message>
    <message>
        <source>true strain</source>
        <translation>wahre Dehnung</translation>
    </message>
    <message>
        <source>volumetric strain</source>
        <translation>Volumendehnung</translation>
    </message>
    <message>
        <source>strain rate</source>
        <translation>Dehnrate</translation>
    </message>
    <message>
        <source>modulus</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Young&apos;s modulus</source>
        <translation>Elastizitätsmodul</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Querkontraktionszahl</translation>
    </message>
    <message>
        <source>shear modulus</source>
        <translation>Schubmodul</translation>
    </message>
    <message>
        <source>bulk modulus</source>
        <translation>Kompressionsmodul</translation>
    </message>
    <message>
        <source>factor of the series</source>
        <translation>Faktor der Reihe</translation>
    </message>
    <message>
        <source>limiting stretch</source>
        <translation>Grenzstreckung</translation>
    </message>
    <message>
        <source>first constant</source>
        <translation>erste Konstante</translation>
    </message>
    <message>
        <source>second constant</source>
        <translation>zweite Konstante</translation>
    </message>
    <message>
        <source>mixed constant</source>
        <translation>gemischte Konstante</translation>
    </message>
    <message>
        <source>compressibility</source>
        <translation>Kompressibilität</translation>
    </message>
    <message>
        <source>initial shear modulus</source>
        <translation>Anfangsschubmodul</translation>
    </message>
    <message>
        <source>initial Young&apos;s modulus</source>
        <translation>Anfangselastizitätsmodul</translation>
    </message>
    <message>
        <source>initial Poisson&apos;s ratio</source>
        <translation>Anfangsquerkontraktionszahl</translation>
    </message>
    <message>
        <source>initial bulk modulus</source>
        <translation>Anfangskompressionsmodul</translation>
    </message>
    <message>
        <source>creep constant</source>
        <translation>Kriechkonstante</translation>
    </message>
    <message>
        <source>stress exponent</source>
        <translation>Spannungsexponent</translation>
    </message>
    <message>
        <source>time exponent</source>
        <translation>Zeitexponent</translation>
    </message>
    <message>
        <source>initial yield stress</source>
        <translation>Anfangsfließspannung</translation>
    </message>
    <message>
        <source>yield stress</source>
        <translation>Fließspannung</translation>
    </message>
    <message>
        <source>hardening modulus</source>
        <translation>Verfestigungsmodul</translation>
    </message>
    <message>
        <source>tangent modulus</source>
        <translation>Tangentenmodul</translation>
    </message>
    <message>
        <source>engineering strain at necking</source>
        <translation>technische Dehnung bei Einschnürung</translation>
    </message>
    <message>
        <source>tensile strength</source>
        <translation>Zugfestigkeit</translation>
    </message>
    <message>
        <source>friction angle</source>
        <translation>Reibungswinkel</translation>
    </message>
    <message>
        <source>relaxing part</source>
        <translation>relaxierender Teil</translation>
    </message>
    <message>
        <source>relaxation time</source>
        <translation>Relaxationszeit</translation>
    </message>
    <message>
        <source>instantaneous shear modulus</source>
        <translation>Sofort-Schubmodul</translation>
    </message>
    <message>
        <source>long-term shear modulus</source>
        <translation>Langzeit-Schubmodul</translation>
    </message>
</context>
<context>
    <name>vxInspector</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>vxInspector::AppliedText</name>
    <message>
        <source>%1: %2 values</source>
        <translation>%1: %2 Werte</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The tests are not kept.</source>
        <translation>Die Versuche werden nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>Kept tests: %1.</source>
        <translation>Aufbewahrte Versuche: %1.</translation>
    </message>
    <message>
        <source>Written to the table of &quot;%1&quot;, which is not applied yet: %2.</source>
        <translation>In die Tabelle von „%1“ geschrieben, die noch nicht angewendet ist: %2.</translation>
    </message>
    <message>
        <source>Written to &quot;%1&quot;: %2.</source>
        <translation>In „%1“ geschrieben: %2.</translation>
    </message>
    <message>
        <source>Removed: %1.</source>
        <translation>Entfernt: %1.</translation>
    </message>
</context>
<context>
    <name>vxInspector::CardTable</name>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>No card applies to it.</source>
        <translation>Keine Karte gilt dafür.</translation>
    </message>
    <message>
        <source>The numbers of cards are in SI units.</source>
        <translation>Die Zahlen der Karten sind in SI-Einheiten.</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Row %1 cannot be read: %2</source>
        <translation>Zeile %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Solverdatei</translation>
    </message>
</context>
<context>
    <name>vxInspector::CardsPage</name>
    <message>
        <source>The cards cannot be copied</source>
        <translation>Die Karten können nicht kopiert werden</translation>
    </message>
    <message>
        <source>C&amp;ards for:</source>
        <translation>Ka&amp;rten für:</translation>
    </message>
    <message>
        <source>The solver of this program</source>
        <translation>Solver dieses Programms</translation>
    </message>
    <message>
        <source>Cards for</source>
        <translation>Karten für</translation>
    </message>
    <message>
        <source>The solver whose input is shown</source>
        <translation>Der Solver, dessen Eingabe gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the text of the cards</source>
        <translation>Den Text der Karten kopieren</translation>
    </message>
    <message>
        <source>Form of the text</source>
        <translation>Form des Textes</translation>
    </message>
    <message>
        <source>The form in which the solver reads its input</source>
        <translation>Die Form, in der der Solver seine Eingabe liest</translation>
    </message>
</context>
<context>
    <name>vxInspector::CompareTable</name>
    <message>
        <source>%1 (derived)</source>
        <translation>%1 (abgeleitet)</translation>
    </message>
    <message>
        <source>The values differ.</source>
        <translation>Die Werte sind verschieden.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>The materials have the same values.</source>
        <translation>Die Materialien haben die gleichen Werte.</translation>
    </message>
    <message>
        <source>Different in %1 of %2 quantities.</source>
        <translation>Verschieden in %1 von %2 Größen.</translation>
    </message>
    <message>
        <source>With changes that are not applied: %1.</source>
        <translation>Mit nicht angewendeten Änderungen: %1.</translation>
    </message>
    <message>
        <source>Suppressed: %1.</source>
        <translation>Unterdrückt: %1.</translation>
    </message>
</context>
<context>
    <name>vxInspector::ContentView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>&amp;Tabelle kopieren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>The cells cannot be copied</source>
        <translation>Die Zellen können nicht kopiert werden</translation>
    </message>
</context>
<context>
    <name>vxInspector::CurvesContent</name>
    <message>
        <source>%1 (suppressed)</source>
        <translation>%1 (unterdrückt)</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>It has no constants of a model with curves: elasticity, hyperelasticity, plasticity, creep or visco-elasticity.</source>
        <translation>Es hat keine Konstanten eines Modells mit Kurven: Elastizität, Hyperelastizität, Plastizität, Kriechen oder Viskoelastizität.</translation>
    </message>
    <message>
        <source>The materials have no constants of a model with curves: elasticity, hyperelasticity, plasticity, creep or visco-elasticity.</source>
        <translation>Die Materialien haben keine Konstanten eines Modells mit Kurven: Elastizität, Hyperelastizität, Plastizität, Kriechen oder Viskoelastizität.</translation>
    </message>
    <message>
        <source>Materials without a model: %1.</source>
        <translation>Materialien ohne Modell: %1.</translation>
    </message>
    <message>
        <source>The constant %1 cannot be read: &quot;%2&quot;. %3</source>
        <translation>Die Konstante „%1“ kann nicht gelesen werden: „%2“. %3</translation>
    </message>
</context>
<context>
    <name>vxInspector::CurvesPage</name>
    <message>
        <source>The curves cannot be drawn</source>
        <translation>Die Kurven können nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>t&amp;o:</source>
        <translation>&amp;bis:</translation>
    </message>
    <message>
        <source>log x</source>
        <translation>log x</translation>
    </message>
    <message>
        <source>Horizontal axis with a logarithmic scale</source>
        <translation>Waagerechte Achse mit logarithmischer Teilung</translation>
    </message>
    <message>
        <source>log y</source>
        <translation>log y</translation>
    </message>
    <message>
        <source>Vertical axis with a logarithmic scale</source>
        <translation>Senkrechte Achse mit logarithmischer Teilung</translation>
    </message>
    <message>
        <source>The tests whose curves are drawn. Tests with the same axes can be drawn together.</source>
        <translation>Die Versuche, deren Kurven gezeichnet werden. Versuche mit gleichen Achsen können zusammen gezeichnet werden.</translation>
    </message>
    <message>
        <source>The quantity on the vertical axis</source>
        <translation>Die Größe auf der senkrechten Achse</translation>
    </message>
    <message>
        <source>Vertical axis</source>
        <translation>Senkrechte Achse</translation>
    </message>
    <message>
        <source>Beginning of the horizontal axis</source>
        <translation>Anfang der waagerechten Achse</translation>
    </message>
    <message>
        <source>End of the horizontal axis</source>
        <translation>Ende der waagerechten Achse</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Findings about the curves</source>
        <translation>Befunde zu den Kurven</translation>
    </message>
    <message>
        <source>Tests: %1</source>
        <translation>Versuche: %1</translation>
    </message>
    <message>
        <source>Draw as incompressible</source>
        <translation>Inkompressibel zeichnen</translation>
    </message>
    <message>
        <source>This number cannot be read.</source>
        <translation>Diese Zahl kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Draw chains by the inverse Langevin function</source>
        <translation>Ketten mit der inversen Langevin-Funktion zeichnen</translation>
    </message>
    <message>
        <source>not known: multiples of it</source>
        <translation>unbekannt: Vielfache davon</translation>
    </message>
    <message>
        <source>&amp;Stresses:</source>
        <translation>&amp;Spannungen:</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>&amp;Zeit:</translation>
    </message>
    <message>
        <source>Co&amp;hesion:</source>
        <translation>&amp;Kohäsion:</translation>
    </message>
    <message>
        <source>The stresses of the creep curves, separated by semicolons, with a unit if you like</source>
        <translation>Die Spannungen der Kriechkurven, durch Strichpunkte getrennt, auf Wunsch mit Einheit</translation>
    </message>
    <message>
        <source>The time after loading at which the creep rates are drawn</source>
        <translation>Die Zeit nach der Belastung, für die die Kriechraten gezeichnet werden</translation>
    </message>
    <message>
        <source>The cohesion of the yield surface, which the material does not have</source>
        <translation>Die Kohäsion der Fließfläche, die das Material nicht hat</translation>
    </message>
</context>
<context>
    <name>vxInspector::DeckForms</name>
    <message>
        <source>As CalculiX reads it</source>
        <translation>Wie CalculiX sie liest</translation>
    </message>
    <message>
        <source>As the commercial relative of CalculiX reads it</source>
        <translation>Wie der kommerzielle Verwandte von CalculiX sie liest</translation>
    </message>
    <message>
        <source>Fields of 8 characters, of 16 if a number needs them</source>
        <translation>Felder von 8 Zeichen, von 16, wenn eine Zahl sie braucht</translation>
    </message>
    <message>
        <source>Small fields: 8 characters, numbers are rounded</source>
        <translation>Kleine Felder: 8 Zeichen, Zahlen werden gerundet</translation>
    </message>
    <message>
        <source>Large fields: 16 characters</source>
        <translation>Große Felder: 16 Zeichen</translation>
    </message>
    <message>
        <source>Free fields, separated by commas</source>
        <translation>Freie Felder, durch Kommas getrennt</translation>
    </message>
</context>
<context>
    <name>vxInspector::DeckLines</name>
    <message>
        <source>all %1</source>
        <translation>alle %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Quantities carried: %1, converted: %2, approximated: %3, lost: %4.</source>
        <translation>Größen übernommen: %1, umgerechnet: %2, angenähert: %3, verloren: %4.</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Approximated</source>
        <translation>Angenähert</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Umgerechnet</translation>
    </message>
    <message>
        <source>Carried</source>
        <translation>Übernommen</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Doubt</source>
        <translation>Zweifel</translation>
    </message>
</context>
<context>
    <name>vxInspector::FindingTable</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read: %4</source>
        <translation>Zeile %1: Der Wert „%2“ von „%3“ kann nicht gelesen werden: %4</translation>
    </message>
    <message>
        <source>Doubt</source>
        <translation>Zweifel</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Kein Befund.</translation>
    </message>
    <message>
        <source>Findings: %1.</source>
        <translation>Befunde: %1.</translation>
    </message>
    <message>
        <source>The last %1 are not listed.</source>
        <translation>Die letzten %1 sind nicht aufgeführt.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Only the models of the first %1 materials are examined.</source>
        <translation>Nur die Modelle der ersten %1 Materialien werden untersucht.</translation>
    </message>
</context>
<context>
    <name>vxInspector::FindingsPage</name>
    <message>
        <source>&amp;Apply remedy</source>
        <translation>&amp;Abhilfe anwenden</translation>
    </message>
    <message>
        <source>Change the value as the remedy of the selected finding says. The change can be undone.</source>
        <translation>Ändert den Wert, wie es die Abhilfe des ausgewählten Befunds sagt. Die Änderung kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>The finding cannot be shown in the editor</source>
        <translation>Der Befund kann im Editor nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The remedy cannot be applied</source>
        <translation>Die Abhilfe kann nicht angewandt werden</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitApplying</name>
    <message>
        <source>Apply fit</source>
        <translation>Anpassung übernehmen</translation>
    </message>
    <message>
        <source>Apply fit to &quot;%1&quot;</source>
        <translation>Anpassung auf „%1“ anwenden</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitOptions</name>
    <message>
        <source>&amp;Keep rubber stable</source>
        <translation>Gummi stabil &amp;halten</translation>
    </message>
    <message>
        <source>Without this, a fit may be unstable in tests that were not made.</source>
        <translation>Ohne dies kann eine Anpassung in nicht gemachten Versuchen instabil sein.</translation>
    </message>
    <message>
        <source>at stretc&amp;hes:</source>
        <translation>bei Streck&amp;ungen:</translation>
    </message>
    <message>
        <source>those of the tests</source>
        <translation>die der Versuche</translation>
    </message>
    <message>
        <source>The first and the last stretch, such as 0.5:3</source>
        <translation>Die erste und die letzte Streckung, zum Beispiel 0.5:3</translation>
    </message>
    <message>
        <source>Diff&amp;erences:</source>
        <translation>Abwe&amp;ichungen:</translation>
    </message>
    <message>
        <source>What is made small: the differences between tests and model, divided by the largest value of their test, by each value, or not divided</source>
        <translation>Was klein gemacht wird: die Abweichungen zwischen Versuchen und Modell, geteilt durch den größten Wert ihres Versuchs, durch jeden Wert, oder nicht geteilt</translation>
    </message>
    <message>
        <source>by the largest value</source>
        <translation>durch den größten Wert</translation>
    </message>
    <message>
        <source>by each value</source>
        <translation>durch jeden Wert</translation>
    </message>
    <message>
        <source>absolute</source>
        <translation>absolut</translation>
    </message>
    <message>
        <source>&amp;Bounds:</source>
        <translation>Gre&amp;nzen:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Bounds of constants, or their values, separated by semicolons, such as C10=0:1 MPa; C01=0. The symbols are those of the results.</source>
        <translation>Grenzen von Konstanten oder ihre Werte, durch Strichpunkte getrennt, zum Beispiel C10=0:1 MPa; C01=0. Die Symbole sind die der Ergebnisse.</translation>
    </message>
    <message>
        <source>&amp;Young&apos;s modulus:</source>
        <translation>Elastizitäts&amp;modul:</translation>
    </message>
    <message>
        <source>the slope of the curve</source>
        <translation>die Steigung der Kurve</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio:</source>
        <translation>Querkontraktionszahl:</translation>
    </message>
    <message>
        <source>&amp;Offset strain:</source>
        <translation>E&amp;rsatzdehnung:</translation>
    </message>
    <message>
        <source>The plastic strain at which a metal yields</source>
        <translation>Die plastische Dehnung, bei der ein Metall fließt</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation>Toleranz:</translation>
    </message>
    <message>
        <source>The distance of a multilinear curve from the points, as a part of the largest stress</source>
        <translation>Der Abstand einer multilinearen Kurve von den Punkten, als Teil der größten Spannung</translation>
    </message>
    <message>
        <source>The stretches of stability must be two numbers greater than 0 that rise, such as 0.5:3.</source>
        <translation>Die Streckungen der Stabilität müssen zwei steigende Zahlen größer als 0 sein, zum Beispiel 0.5:3.</translation>
    </message>
    <message>
        <source>Young&apos;s modulus cannot be read, or is not greater than 0.</source>
        <translation>Der Elastizitätsmodul kann nicht gelesen werden oder ist nicht größer als 0.</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio must be greater than -1 and not greater than 0.5.</source>
        <translation>Die Querkontraktionszahl muss größer als -1 und darf nicht größer als 0.5 sein.</translation>
    </message>
    <message>
        <source>The offset strain must be greater than 0 and not greater than 1.</source>
        <translation>Die Ersatzdehnung muss größer als 0 und darf nicht größer als 1 sein.</translation>
    </message>
    <message>
        <source>The tolerance must be greater than 0 and not greater than 1.</source>
        <translation>Die Toleranz muss größer als 0 und darf nicht größer als 1 sein.</translation>
    </message>
    <message>
        <source>Bounds: %1</source>
        <translation>Grenzen: %1</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitPage</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>Die Versuchsdaten können nicht verwendet werden</translation>
    </message>
    <message>
        <source>The constants cannot be applied</source>
        <translation>Die Konstanten können nicht übernommen werden</translation>
    </message>
    <message>
        <source>F&amp;it</source>
        <translation>&amp;Anpassen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 200 MB and is not read.</source>
        <translation>Die Datei „%1“ ist größer als 200 MB und wird nicht gelesen.</translation>
    </message>
    <message>
        <source>The result of the fit cannot be shown</source>
        <translation>Das Ergebnis der Anpassung kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The fit has failed: %1</source>
        <translation>Die Anpassung ist gescheitert: %1</translation>
    </message>
    <message>
        <source>Load test data from a file, or paste columns of numbers, to fit the constants of models to them.</source>
        <translation>Laden Sie Versuchsdaten aus einer Datei oder fügen Sie Zahlenspalten ein, um Konstanten von Modellen daran anzupassen.</translation>
    </message>
    <message>
        <source>&amp;Apply to &quot;%1&quot;</source>
        <translation>Auf „%1“ &amp;übernehmen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Select a material that gets the constants.</source>
        <translation>Wählen Sie ein Material aus, das die Konstanten erhält.</translation>
    </message>
    <message>
        <source>Write the constants of the selected model into the material, and keep the tests with it. The change can be undone.</source>
        <translation>Schreibt die Konstanten des gewählten Modells in den Werkstoff und bewahrt die Versuche bei ihm auf. Die Änderung kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>The tests are not kept with &quot;%1&quot;</source>
        <translation>Die Versuche werden nicht bei „%1“ aufbewahrt</translation>
    </message>
    <message>
        <source>A table of test data is being read.</source>
        <translation>Eine Tabelle mit Versuchsdaten wird gelesen.</translation>
    </message>
    <message>
        <source>The program does not close</source>
        <translation>Das Programm wird nicht geschlossen</translation>
    </message>
    <message>
        <source>Tests are not kept</source>
        <translation>Versuche sind nicht gespeichert</translation>
    </message>
    <message>
        <source>The fit leaves out these tests, and &quot;Apply&quot; does not keep them: %1. Select a test to see what is missing.</source>
        <translation>Die Anpassung lässt diese Versuche aus, und „Übernehmen“ speichert sie nicht: %1. Wählen Sie einen Versuch aus, um zu sehen, was fehlt.</translation>
    </message>
    <message>
        <source>These tests of the tab Fit are not kept with a material: %1. If the program closes, they are lost. &quot;Apply&quot; in the tab keeps those that the fit uses.</source>
        <translation>Diese Versuche des Registers „Anpassung“ sind bei keinem Material gespeichert: %1. Wenn das Programm geschlossen wird, gehen sie verloren. „Übernehmen“ im Register speichert die, die die Anpassung verwendet.</translation>
    </message>
    <message>
        <source>The tests are being written for the material.</source>
        <translation>Die Versuche werden für das Material geschrieben.</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitTables</name>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>gescheitert</translation>
    </message>
    <message>
        <source>poorly determined</source>
        <translation>schlecht bestimmt</translation>
    </message>
    <message>
        <source>at its bound</source>
        <translation>an seiner Grenze</translation>
    </message>
    <message>
        <source>not determined by the data</source>
        <translation>von den Daten nicht bestimmt</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>festgehalten</translation>
    </message>
    <message>
        <source>R² %1, %2 points</source>
        <translation>R² %1, %2 Punkte</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Versuch</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>to be chosen</source>
        <translation>zu wählen</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Residual</source>
        <translation>Restfehler</translation>
    </message>
    <message>
        <source>R²</source>
        <translation>R²</translation>
    </message>
    <message>
        <source>Without stability</source>
        <translation>Ohne Stabilität</translation>
    </message>
    <message>
        <source>Stable</source>
        <translation>Stabil</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstante</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>%1 to %2 in all tests</source>
        <translation>%1 bis %2 in allen Versuchen</translation>
    </message>
    <message>
        <source>otherwise %1 to %2</source>
        <translation>sonst %1 bis %2</translation>
    </message>
    <message>
        <source>Yield stress %1</source>
        <translation>Fließspannung %1</translation>
    </message>
    <message>
        <source>at plastic strain %1</source>
        <translation>bei der plastischen Dehnung %1</translation>
    </message>
    <message>
        <source>The material was fitted to these tests: %1, residual %2, R² %3.</source>
        <translation>Das Material wurde an diese Versuche angepasst: %1, Restfehler %2, R² %3.</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitTests</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>Die Versuchsdaten können nicht verwendet werden</translation>
    </message>
</context>
<context>
    <name>vxInspector::Inspector</name>
    <message>
        <source>The inspector cannot be updated</source>
        <translation>Der Inspektor kann nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>&amp;Einheiten:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>As the project (%1)</source>
        <translation>Wie das Projekt (%1)</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>The unit system of values, findings, decks, comparison and curves. It changes no value.</source>
        <translation>Das Einheitensystem von Werten, Befunden, Solverdateien, Vergleich und Kurven. Es ändert keinen Wert.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>vxInspector::InspectorContent</name>
    <message>
        <source>The inspector cannot be updated</source>
        <translation>Der Inspektor kann nicht aktualisiert werden</translation>
    </message>
</context>
<context>
    <name>vxInspector::InspectorDock</name>
    <message>
        <source>Select a material in the project explorer, or open its editor.</source>
        <translation>Wählen Sie ein Material im Projektbaum aus, oder öffnen Sie seinen Editor.</translation>
    </message>
    <message>
        <source>The inspector cannot be loaded</source>
        <translation>Der Inspektor kann nicht geladen werden</translation>
    </message>
    <message>
        <source>The inspector cannot be loaded; the message log says why.</source>
        <translation>Der Inspektor kann nicht geladen werden; das Meldungsprotokoll nennt den Grund.</translation>
    </message>
</context>
<context>
    <name>vxInspector::KeptMeasurements</name>
    <message>
        <source>The kept tests cannot be read: %1. They are left as they are.</source>
        <translation>Die aufbewahrten Versuche können nicht gelesen werden: %1. Sie bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The tests cannot be written: %1.</source>
        <translation>Die Versuche können nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The kept tests cannot be read</source>
        <translation>Die aufbewahrten Versuche können nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>vxInspector::LoadedTest</name>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 as %2 in %3</source>
        <translation>%1 als %2 in %3</translation>
    </message>
    <message>
        <source>Enter the stress of the creep test.</source>
        <translation>Geben Sie die Spannung des Kriechversuchs ein.</translation>
    </message>
    <message>
        <source>Choose the column of the horizontal axis.</source>
        <translation>Wählen Sie die Spalte der waagerechten Achse.</translation>
    </message>
    <message>
        <source>Choose the column of the vertical axis.</source>
        <translation>Wählen Sie die Spalte der senkrechten Achse.</translation>
    </message>
    <message>
        <source>Choose what the column of the horizontal axis measures.</source>
        <translation>Wählen Sie, was die Spalte der waagerechten Achse misst.</translation>
    </message>
    <message>
        <source>Choose what the column of the vertical axis measures.</source>
        <translation>Wählen Sie, was die Spalte der senkrechten Achse misst.</translation>
    </message>
    <message>
        <source>Enter the unit of the horizontal axis.</source>
        <translation>Geben Sie die Einheit der waagerechten Achse ein.</translation>
    </message>
    <message>
        <source>Enter the unit of the vertical axis.</source>
        <translation>Geben Sie die Einheit der senkrechten Achse ein.</translation>
    </message>
    <message>
        <source>%1 columns, %2 rows.</source>
        <translation>%1 Spalten, %2 Zeilen.</translation>
    </message>
    <message>
        <source>Choose which test it is.</source>
        <translation>Wählen Sie, welcher Versuch es ist.</translation>
    </message>
    <message>
        <source>%1 points: %2 against %3.</source>
        <translation>%1 Punkte: %2 über %3.</translation>
    </message>
    <message>
        <source>The test is being read.</source>
        <translation>Der Versuch wird gelesen.</translation>
    </message>
</context>
<context>
    <name>vxInspector::ModulusChoice</name>
    <message>
        <source>&amp;Modulus:</source>
        <translation>&amp;Modul:</translation>
    </message>
    <message>
        <source>The Young&apos;s modulus with which the elastic part is taken off the measured strain</source>
        <translation>Der Elastizitätsmodul, mit dem der elastische Teil von der gemessenen Dehnung abgezogen wird</translation>
    </message>
    <message>
        <source>of the curve: %1</source>
        <translation>der Kurve: %1</translation>
    </message>
    <message>
        <source>of the material: %1</source>
        <translation>des Materials: %1</translation>
    </message>
    <message>
        <source>The elastic part is taken off with Young&apos;s modulus %1 (%3 beside the material). The material keeps its %2.</source>
        <translation>Der elastische Teil wird mit dem Elastizitätsmodul %1 abgezogen (%3 gegenüber dem Material). Das Material behält seine %2.</translation>
    </message>
    <message>
        <source>Young&apos;s modulus is %1 by the curve and %2 in the material (%3).</source>
        <translation>Der Elastizitätsmodul ist %1 nach der Kurve und %2 im Material (%3).</translation>
    </message>
    <message>
        <source>Unless you choose otherwise, the elastic part is taken off with that of the curve, and &quot;Apply&quot; writes it.</source>
        <translation>Wenn Sie nichts anderes wählen, wird der elastische Teil mit dem der Kurve abgezogen, und „Übernehmen“ schreibt ihn.</translation>
    </message>
    <message>
        <source>The elastic part is taken off with that of the material, which keeps it.</source>
        <translation>Der elastische Teil wird mit dem des Materials abgezogen, das ihn behält.</translation>
    </message>
</context>
<context>
    <name>vxInspector::PlotView</name>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>&amp;Tabelle kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Speichern unter…</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Drag a rectangle or turn the wheel to zoom; Home shows everything. A click on the legend hides a curve.</source>
        <translation>Ziehen Sie ein Rechteck auf oder drehen Sie das Mausrad, um zu vergrößern; Pos1 zeigt alles. Ein Klick auf die Legende blendet eine Kurve aus.</translation>
    </message>
    <message>
        <source>The plot cannot be drawn</source>
        <translation>Das Diagramm kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>The picture cannot be copied</source>
        <translation>Das Bild kann nicht kopiert werden</translation>
    </message>
    <message>
        <source>The table cannot be copied</source>
        <translation>Die Tabelle kann nicht kopiert werden</translation>
    </message>
    <message>
        <source>The plot cannot be saved</source>
        <translation>Das Diagramm kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Document (*.pdf);;Table (*.csv)</source>
        <translation>Bild (*.png);;Zeichnung (*.svg);;Dokument (*.pdf);;Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Save plot</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not written: its name must end in png, svg, pdf or csv.</source>
        <translation>Die Datei „%1“ wird nicht geschrieben: Ihr Name muss auf png, svg, pdf oder csv enden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>vxInspector::RangeBar</name>
    <message>
        <source>Solids: %1 to %2</source>
        <translation>Festkörper: %1 bis %2</translation>
    </message>
    <message>
        <source>Liquids: %1 to %2</source>
        <translation>Flüssigkeiten: %1 bis %2</translation>
    </message>
    <message>
        <source>Gases: %1 to %2</source>
        <translation>Gase: %1 bis %2</translation>
    </message>
    <message>
        <source>beyond the known range</source>
        <translation>außerhalb des bekannten Bereichs</translation>
    </message>
    <message>
        <source>below the known range</source>
        <translation>unter dem bekannten Bereich</translation>
    </message>
    <message>
        <source>above the known range</source>
        <translation>über dem bekannten Bereich</translation>
    </message>
    <message>
        <source>within the known range</source>
        <translation>im bekannten Bereich</translation>
    </message>
    <message>
        <source>The scale is logarithmic.</source>
        <translation>Die Skala ist logarithmisch.</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Quelle: %1</translation>
    </message>
    <message>
        <source>The scale is logarithmic; 0 is at its left end.</source>
        <translation>Die Skala ist logarithmisch; 0 liegt an ihrem linken Ende.</translation>
    </message>
</context>
<context>
    <name>vxInspector::Remedying</name>
    <message>
        <source>Apply remedy</source>
        <translation>Abhilfe anwenden</translation>
    </message>
    <message>
        <source>The remedy was applied to &quot;%1&quot;: %2.</source>
        <translation>Die Abhilfe wurde auf „%1“ angewendet: %2.</translation>
    </message>
    <message>
        <source>%1: %2 becomes %3</source>
        <translation>%1: %2 wird zu %3</translation>
    </message>
</context>
<context>
    <name>vxInspector::ResultPanel</name>
    <message>
        <source>Fitted models</source>
        <translation>Angepasste Modelle</translation>
    </message>
    <message>
        <source>Constants of the model</source>
        <translation>Konstanten des Modells</translation>
    </message>
</context>
<context>
    <name>vxInspector::TabContents</name>
    <message>
        <source>The project has no materials yet.</source>
        <translation>Das Projekt hat noch keine Materialien.</translation>
    </message>
    <message>
        <source>The selection contains no materials.</source>
        <translation>Die Auswahl enthält keine Materialien.</translation>
    </message>
    <message>
        <source>Select a material in the project explorer, or open its editor.</source>
        <translation>Wählen Sie ein Material im Projektbaum aus, oder öffnen Sie seinen Editor.</translation>
    </message>
    <message>
        <source>%1 materials are selected; this is the first. Compare shows them side by side.</source>
        <translation>%1 Materialien sind ausgewählt; dies ist das erste. „Vergleich“ zeigt sie nebeneinander.</translation>
    </message>
    <message>
        <source>A project is selected. Select a material to see its values.</source>
        <translation>Ein Projekt ist ausgewählt. Wählen Sie ein Material aus, um seine Werte zu sehen.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>Im Projekt</translation>
    </message>
    <message>
        <source>Suppressed</source>
        <translation>Unterdrückt</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
    <message>
        <source>With doubtful values</source>
        <translation>Mit zweifelhaften Werten</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are checked.</source>
        <translation>Nur die ersten %1 von %2 Materialien werden geprüft.</translation>
    </message>
    <message>
        <source>Select a material to see its cards.</source>
        <translation>Wählen Sie ein Material aus, um seine Karten zu sehen.</translation>
    </message>
    <message>
        <source>Select two or more materials to compare them.</source>
        <translation>Wählen Sie zwei oder mehr Materialien aus, um sie zu vergleichen.</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are shown.</source>
        <translation>Nur die ersten %1 von %2 Materialien werden gezeigt.</translation>
    </message>
    <message>
        <source>A project is selected. Select one or more materials to see their curves.</source>
        <translation>Ein Projekt ist ausgewählt. Wählen Sie ein oder mehrere Materialien aus, um ihre Kurven zu sehen.</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are compared.</source>
        <translation>Nur die ersten %1 von %2 Materialien werden verglichen.</translation>
    </message>
</context>
<context>
    <name>vxInspector::TabsLibrary</name>
    <message>
        <source>the file %1 is missing</source>
        <translation>die Datei %1 fehlt</translation>
    </message>
</context>
<context>
    <name>vxInspector::TestForm</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>Die Versuchsdaten können nicht verwendet werden</translation>
    </message>
    <message>
        <source>&amp;Test:</source>
        <translation>&amp;Versuch:</translation>
    </message>
    <message>
        <source>Hori&amp;zontal:</source>
        <translation>&amp;Waagerecht:</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation>&amp;Senkrecht:</translation>
    </message>
    <message>
        <source>&amp;Stress:</source>
        <translation>S&amp;pannung:</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Gewicht:</translation>
    </message>
    <message>
        <source>Choose the test</source>
        <translation>Versuch wählen</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Measured quantity</source>
        <translation>Gemessene Größe</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>The column of the file</source>
        <translation>Die Spalte der Datei</translation>
    </message>
    <message>
        <source>What the column measures</source>
        <translation>Was die Spalte misst</translation>
    </message>
    <message>
        <source>The unit of the column, such as MPa or %</source>
        <translation>Die Einheit der Spalte, etwa MPa oder %</translation>
    </message>
    <message>
        <source> Pa</source>
        <translation> Pa</translation>
    </message>
    <message>
        <source>by its header</source>
        <translation>nach der Überschrift</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>vxInspector::TestPanel</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>Die Versuchsdaten können nicht verwendet werden</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Laden…</translation>
    </message>
    <message>
        <source>Load test data from a file with columns of numbers</source>
        <translation>Versuchsdaten aus einer Datei mit Zahlenspalten laden</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ein&amp;fügen</translation>
    </message>
    <message>
        <source>Take columns of numbers from the clipboard</source>
        <translation>Zahlenspalten aus der Zwischenablage übernehmen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Versuche</translation>
    </message>
    <message>
        <source>Load test data</source>
        <translation>Versuchsdaten laden</translation>
    </message>
    <message>
        <source>Test data (*.csv *.txt *.dat *.tsv);;All files (*)</source>
        <translation>Versuchsdaten (*.csv *.txt *.dat *.tsv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Test %1</source>
        <translation>Versuch %1</translation>
    </message>
    <message>
        <source>Take the test out of this tab, or remove what the material keeps</source>
        <translation>Den Versuch aus diesem Reiter nehmen oder entfernen, was das Material aufbewahrt</translation>
    </message>
    <message>
        <source>Take the test out of this tab</source>
        <translation>Den Versuch aus diesem Reiter nehmen</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; from this tab</source>
        <translation>Versuch „%1“ aus diesem Reiter</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; from the material &quot;%2&quot;</source>
        <translation>Versuch „%1“ aus dem Material „%2“</translation>
    </message>
    <message>
        <source>All tests and records of fits from the material &quot;%1&quot;</source>
        <translation>Alle Versuche und Aufzeichnungen von Anpassungen aus dem Material „%1“</translation>
    </message>
    <message>
        <source>Remove test &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>Versuch „%1“ aus „%2“ entfernen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not keep the test &quot;%2&quot; any more. Undo brings it back.</source>
        <translation>„%1“ bewahrt den Versuch „%2“ nicht mehr auf. „Rückgängig“ bringt ihn zurück.</translation>
    </message>
    <message>
        <source>Remove tests and fits from &quot;%1&quot;</source>
        <translation>Versuche und Anpassungen aus „%1“ entfernen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; keeps no tests any more. Undo brings them back.</source>
        <translation>„%1“ bewahrt keine Versuche mehr auf. „Rückgängig“ bringt sie zurück.</translation>
    </message>
</context>
<context>
    <name>vxInspector::ValueTable</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 (derived)</source>
        <translation>%1 (abgeleitet)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, with the changes in its editor that are not applied.</source>
        <translation>„%1“ mit den nicht angewandten Änderungen in seinem Editor.</translation>
    </message>
    <message>
        <source>It is suppressed.</source>
        <translation>Es ist unterdrückt.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>It has no quantities yet.</source>
        <translation>Es hat noch keine Größen.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>&quot;%1&quot;.</source>
        <translation>„%1“.</translation>
    </message>
    <message>
        <source>A switch is on if the material has it, whatever its number. Remove the quantity to switch it off.</source>
        <translation>Ein Schalter ist ein, wenn das Material ihn hat, unabhängig von seiner Zahl. Entfernen Sie die Größe, um ihn auszuschalten.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
</context>
<context>
    <name>vxInspector::VolumeChoice</name>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>remove: incompressible</source>
        <translation>entfernen: inkompressibel</translation>
    </message>
    <message>
        <source>&amp;D1:</source>
        <translation>&amp;D1:</translation>
    </message>
    <message>
        <source>What happens to the compressibility of the material</source>
        <translation>Was mit der Kompressibilität des Materials geschieht</translation>
    </message>
    <message>
        <source>The ratio of the initial bulk modulus 2/D1 to the initial shear modulus of the fit</source>
        <translation>Das Verhältnis des Anfangskompressionsmoduls 2/D1 zum Anfangsschubmodul der Anpassung</translation>
    </message>
    <message>
        <source>Ratio of bulk to shear modulus</source>
        <translation>Verhältnis von Kompressions- zu Schubmodul</translation>
    </message>
    <message>
        <source>The fit is incompressible, and the material has no D1.</source>
        <translation>Die Anpassung ist inkompressibel, und das Material hat kein D1.</translation>
    </message>
    <message>
        <source>The check of materials then reports that D1 is missing.</source>
        <translation>Die Materialprüfung meldet danach, dass D1 fehlt.</translation>
    </message>
    <message>
        <source>none: incompressible</source>
        <translation>keines: inkompressibel</translation>
    </message>
    <message>
        <source>times the shear modulus</source>
        <translation>mal den Schubmodul</translation>
    </message>
    <message>
        <source>set the bulk modulus to</source>
        <translation>Kompressionsmodul setzen auf</translation>
    </message>
</context>
<context>
    <name>vxMat::MaterialBase</name>
    <message>
        <source>Structural Steel</source>
        <translation>Baustahl</translation>
    </message>
    <message>
        <source>Aluminum Alloy</source>
        <translation>Aluminiumlegierung</translation>
    </message>
    <message>
        <source>Stainless Steel</source>
        <translation>Edelstahl</translation>
    </message>
    <message>
        <source>Concrete</source>
        <translation>Beton</translation>
    </message>
    <message>
        <source>Copper Alloy</source>
        <translation>Kupferlegierung</translation>
    </message>
    <message>
        <source>Cast Iron</source>
        <translation>Gusseisen</translation>
    </message>
    <message>
        <source>Titanium Alloy</source>
        <translation>Titanlegierung</translation>
    </message>
    <message>
        <source>Nonlinear Structural Steel</source>
        <translation>Baustahl, nichtlinear</translation>
    </message>
    <message>
        <source>Nonlinear Stainless Steel</source>
        <translation>Edelstahl, nichtlinear</translation>
    </message>
    <message>
        <source>Nonlinear Aluminum Alloy</source>
        <translation>Aluminiumlegierung, nichtlinear</translation>
    </message>
    <message>
        <source>Nonlinear Copper Alloy</source>
        <translation>Kupferlegierung, nichtlinear</translation>
    </message>
    <message>
        <source>Nonlinear Titanium Alloy</source>
        <translation>Titanlegierung, nichtlinear</translation>
    </message>
    <message>
        <source>Plastic Example 1</source>
        <translation>Plastizitätsbeispiel 1</translation>
    </message>
    <message>
        <source>Plastic Example 2</source>
        <translation>Plastizitätsbeispiel 2</translation>
    </message>
    <message>
        <source>Viscoelastic Example</source>
        <translation>Viskoelastisches Beispiel</translation>
    </message>
    <message>
        <source>Creep Example</source>
        <translation>Kriechbeispiel</translation>
    </message>
    <message>
        <source>Elastomer 1 (Neo-Hookean)</source>
        <translation>Elastomer 1 (Neo-Hooke)</translation>
    </message>
    <message>
        <source>Elastomer 2 (Mooney-Rivlin)</source>
        <translation>Elastomer 2 (Mooney-Rivlin)</translation>
    </message>
    <message>
        <source>Elastomer 3 (Arruda-Boyce)</source>
        <translation>Elastomer 3 (Arruda-Boyce)</translation>
    </message>
    <message>
        <source>Neoprene Rubber</source>
        <translation>Neoprenkautschuk</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>Luft</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Electromangetic Material 1</source>
        <translation>Elektromagnetisches Material 1</translation>
    </message>
    <message>
        <source>Electromangetic Material 2</source>
        <translation>Elektromagnetisches Material 2</translation>
    </message>
    <message>
        <source>Acoustic Material 1</source>
        <translation>Akustisches Material 1</translation>
    </message>
    <message>
        <source>Acoustic Material 2</source>
        <translation>Akustisches Material 2</translation>
    </message>
</context>
<context>
    <name>vxMat::MaterialFinding</name>
    <message>
        <source>the %1 card lacks a value: &quot;%2&quot;</source>
        <translation>in der Karte „%1“ fehlt ein Wert: „%2“</translation>
    </message>
    <message>
        <source>the plasticity card cannot be complete: exchange documents carry no words and lists</source>
        <translation>die Karte der Plastizität kann nicht vollständig sein: Austauschdokumente enthalten keine Wörter und Listen</translation>
    </message>
    <message>
        <source>the plasticity card cannot be complete: exchange documents carry no words and lists (%1)</source>
        <translation>die Karte der Plastizität kann nicht vollständig sein: Austauschdokumente enthalten keine Wörter und Listen (%1)</translation>
    </message>
    <message>
        <source>no plasticity card is written for yield type &quot;%1&quot; with hardening type &quot;%2&quot;</source>
        <translation>für die Fließart „%1“ mit der Verfestigungsart „%2“ wird keine Karte der Plastizität geschrieben</translation>
    </message>
    <message>
        <source>the plasticity card has no hardening curve: the material has no numbers of &quot;%1&quot;</source>
        <translation>die Karte der Plastizität hat keine Verfestigungskurve: Das Material hat keine Zahlen für „%1“</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which the solver does not use with bilinear hardening: %2</source>
        <translation>die Karte der Plastizität lässt Zahlen von „%1“ weg, die der Solver bei bilinearer Verfestigung nicht verwendet: %2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which the solver does not use with yield type &quot;%3&quot;: %2</source>
        <translation>die Karte der Plastizität lässt Zahlen von „%1“ weg, die der Solver bei der Fließart „%3“ nicht verwendet: %2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which have no plastic strain: %2</source>
        <translation>die Karte der Plastizität lässt Zahlen von „%1“ weg, zu denen keine plastische Dehnung gehört: %2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which have no yield stress: %2</source>
        <translation>die Karte der Plastizität lässt Zahlen von „%1“ weg, zu denen keine Fließspannung gehört: %2</translation>
    </message>
    <message>
        <source>no card is written for &quot;%1&quot;: another model of the material takes precedence</source>
        <translation>für „%1“ wird keine Karte geschrieben: Ein anderes Modell des Materials hat Vorrang</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is not finite, which no solver reads</source>
        <translation>„%1“ hat eine Zahl, die nicht endlich ist; kein Solver liest sie</translation>
    </message>
    <message>
        <source>The material has no properties.</source>
        <translation>Das Material hat keine Eigenschaften.</translation>
    </message>
    <message>
        <source>The catalogue has no quantity %1 (&quot;%2&quot;); the editor does not show it, and applying changes there removes it.</source>
        <translation>Der Katalog hat keine Größe %1 („%2“); der Editor zeigt sie nicht an, und das Anwenden von Änderungen dort entfernt sie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; a finite number is needed.</source>
        <translation>„%1“ ist %2; nötig ist eine endliche Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no number.</source>
        <translation>„%1“ enthält keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be greater than 0.</source>
        <translation>„%1“ ist %2; der Wert muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be from 0.001 to 0.499.</source>
        <translation>„%1“ ist %2; der Wert muss zwischen 0.001 und 0.499 liegen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it must be one of %3.</source>
        <translation>„%1“ ist „%2“; möglich ist nur eines von %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 numbers and &quot;%3&quot; has %4; they form pairs, and numbers without a partner have no effect.</source>
        <translation>„%1“ hat %2 Zahlen und „%3“ hat %4; sie bilden Paare, und Zahlen ohne Gegenstück haben keine Wirkung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; exclude each other; remove one of them.</source>
        <translation>„%1“ und „%2“ schließen einander aus; entfernen Sie eines davon.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot;, which the material does not have.</source>
        <translation>„%1“ benötigt „%2“; das Material hat diesen Wert nicht.</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyDescription</name>
    <message>
        <source>Mass density</source>
        <translation>Massendichte</translation>
    </message>
    <message>
        <source>Between [0.001, 0.499]</source>
        <translation>Zwischen 0.001 und 0.499, Grenzen eingeschlossen</translation>
    </message>
    <message>
        <source>Mutual exclusion to &quot;Isotropic elasticity&quot;</source>
        <translation>Schließt „Isotrope Elastizität“ aus</translation>
    </message>
    <message>
        <source>Mutually exclusive to hyper-elastic properties</source>
        <translation>Schließt hyperelastische Eigenschaften aus</translation>
    </message>
    <message>
        <source>Input &quot;Mises&quot;, &quot;Mohr-Coulomb&quot;, or &quot;Drucker-Prager&quot;</source>
        <translation>„Mises“, „Mohr-Coulomb“ oder „Drucker-Prager“ eingeben</translation>
    </message>
    <message>
        <source>Input &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot;, or &quot;Combined&quot;</source>
        <translation>„Bilinear“, „Multilinear“, „Swift“, „Ramberg-Osgood“, „Kinematic“ oder „Combined“ eingeben</translation>
    </message>
    <message>
        <source>Vector; values are separated by comma</source>
        <translation>Liste; die Werte sind durch Kommas getrennt</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyName</name>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Young&apos;s modulus</source>
        <translation>Elastizitätsmodul</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Querkontraktionszahl</translation>
    </message>
    <message>
        <source>Dynamic viscosity</source>
        <translation>Dynamische Viskosität</translation>
    </message>
    <message>
        <source>Initial Shear Modulus Mu</source>
        <translation>Anfangsschubmodul Mu</translation>
    </message>
    <message>
        <source>Incompressibility Parameter D1</source>
        <translation>Inkompressibilitätsparameter D1</translation>
    </message>
    <message>
        <source>Material Constant C10</source>
        <translation>Materialkonstante C10</translation>
    </message>
    <message>
        <source>Material Constant C01</source>
        <translation>Materialkonstante C01</translation>
    </message>
    <message>
        <source>Neo-Hookean</source>
        <translation>Neo-Hooke</translation>
    </message>
    <message>
        <source>Mooney-Rivlin</source>
        <translation>Mooney-Rivlin</translation>
    </message>
    <message>
        <source>Arruda-Boyce</source>
        <translation>Arruda-Boyce</translation>
    </message>
    <message>
        <source>Isotropic elasticity</source>
        <translation>Isotrope Elastizität</translation>
    </message>
    <message>
        <source>Plasticity</source>
        <translation>Plastizität</translation>
    </message>
    <message>
        <source>Yield type</source>
        <translation>Fließbedingung</translation>
    </message>
    <message>
        <source>Plastic viscosity</source>
        <translation>Plastische Viskosität</translation>
    </message>
    <message>
        <source>Internal frictional angle</source>
        <translation>Innerer Reibungswinkel</translation>
    </message>
    <message>
        <source>Hardening factor</source>
        <translation>Verfestigungsfaktor</translation>
    </message>
    <message>
        <source>Hardening type</source>
        <translation>Verfestigungsart</translation>
    </message>
    <message>
        <source>Yield stress</source>
        <translation>Fließspannung</translation>
    </message>
    <message>
        <source>Plastic strain</source>
        <translation>Plastische Dehnung</translation>
    </message>
    <message>
        <source>Initial yield stress</source>
        <translation>Anfangsfließspannung</translation>
    </message>
    <message>
        <source>Visco-elasticity</source>
        <translation>Viskoelastizität</translation>
    </message>
    <message>
        <source>Shear relaxation modulus</source>
        <translation>Schubrelaxationsmodul</translation>
    </message>
    <message>
        <source>Relaxation time</source>
        <translation>Relaxationszeit</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Kriechen</translation>
    </message>
    <message>
        <source>Creep Modulus A</source>
        <translation>Kriechkonstante A</translation>
    </message>
    <message>
        <source>Creep Modulus N</source>
        <translation>Kriechkonstante N</translation>
    </message>
    <message>
        <source>Creep Modulus M</source>
        <translation>Kriechkonstante M</translation>
    </message>
    <message>
        <source>Limiting Network Stretch</source>
        <translation>Grenzstreckung des Netzwerks</translation>
    </message>
    <message>
        <source>Material Constant C11</source>
        <translation>Materialkonstante C11</translation>
    </message>
    <message>
        <source>Specific heat</source>
        <translation>Spezifische Wärmekapazität</translation>
    </message>
    <message>
        <source>Thermal conductivity</source>
        <translation>Wärmeleitfähigkeit</translation>
    </message>
    <message>
        <source>Electrical conductivity</source>
        <translation>Elektrische Leitfähigkeit</translation>
    </message>
    <message>
        <source>Relative permittivity</source>
        <translation>Relative Permittivität</translation>
    </message>
    <message>
        <source>Relative permeability</source>
        <translation>Relative Permeabilität</translation>
    </message>
    <message>
        <source>Speed of sound</source>
        <translation>Schallgeschwindigkeit</translation>
    </message>
</context>
<context>
    <name>vxMaterial</name>
    <message>
        <source>The materials module could not register its projects</source>
        <translation>Das Materialmodul konnte seine Projekte nicht registrieren</translation>
    </message>
    <message>
        <source>The materials module could not register its user interface</source>
        <translation>Das Materialmodul konnte seine Oberfläche nicht registrieren</translation>
    </message>
</context>
<context>
    <name>vxMsg</name>
    <message>
        <source>The request %1 is not known; nothing was done.</source>
        <translation>Die Anforderung %1 ist nicht bekannt; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>There is no project &quot;%1&quot;; nothing was done.</source>
        <translation>Es gibt kein Projekt „%1“; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>The request %1 takes one name; nothing was done.</source>
        <translation>Die Anforderung %1 braucht genau einen Namen; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>New project &quot;%1&quot;</source>
        <translation>Neues Projekt „%1“</translation>
    </message>
    <message>
        <source>Close project &quot;%1&quot;</source>
        <translation>Projekt „%1“ schließen</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot;</source>
        <translation>„%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; has no object &quot;%2&quot;; nothing was done.</source>
        <translation>Das Projekt „%1“ hat kein Objekt „%2“; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>The request %1 cannot be registered for the class &quot;%2&quot;: it has another meaning.</source>
        <translation>Die Anforderung %1 kann nicht für die Klasse „%2“ registriert werden: Sie hat eine andere Bedeutung.</translation>
    </message>
    <message>
        <source>A request failed</source>
        <translation>Eine Anforderung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>An undo or redo failed</source>
        <translation>Ein Rückgängigmachen oder Wiederholen ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;; nothing was changed.</source>
        <translation>Es gibt keine Eigenschaft „%1“; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is read-only; nothing was changed.</source>
        <translation>Die Eigenschaft „%1“ ist schreibgeschützt; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The label must not be empty; nothing was changed.</source>
        <translation>Die Beschriftung darf nicht leer sein; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>An object failed when its property &quot;%1&quot; was changed</source>
        <translation>Ein Objekt ist beim Ändern seiner Eigenschaft „%1“ fehlgeschlagen</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot be &quot;%2&quot;; nothing was changed.</source>
        <translation>Die Eigenschaft „%1“ kann nicht „%2“ sein; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is being closed already; nothing was done.</source>
        <translation>Das Projekt „%1“ wird bereits geschlossen; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>„%1“ ändern</translation>
    </message>
    <message>
        <source>Suppress &quot;%1&quot;</source>
        <translation>„%1“ unterdrücken</translation>
    </message>
    <message>
        <source>Unsuppress &quot;%1&quot;</source>
        <translation>Unterdrückung von „%1“ aufheben</translation>
    </message>
    <message>
        <source>Hand over &quot;%1&quot;</source>
        <translation>„%1“ übergeben</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; cannot be handed over</source>
        <translation>Das Projekt „%1“ kann nicht übergeben werden</translation>
    </message>
    <message>
        <source>Requests are refused during undo and redo; nothing was done.</source>
        <translation>Während des Rückgängigmachens und Wiederherstellens werden Anforderungen abgelehnt; es wurde nichts getan.</translation>
    </message>
    <message>
        <source>A listener closed the project &quot;%1&quot; before the request was carried out.</source>
        <translation>Ein Empfänger hat das Projekt „%1“ geschlossen, bevor die Anforderung ausgeführt wurde.</translation>
    </message>
    <message>
        <source>The name of a project must not be empty; nothing was changed.</source>
        <translation>Der Name eines Projekts darf nicht leer sein; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Another open project has the name &quot;%1&quot;; nothing was changed.</source>
        <translation>Ein anderes geöffnetes Projekt hat den Namen „%1“; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>„%1“ umbenennen</translation>
    </message>
    <message>
        <source>The name of a setting must not be empty; nothing was changed.</source>
        <translation>Der Name einer Einstellung darf nicht leer sein; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Reset &quot;%1&quot;</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>„%1“ in „%2“ ändern</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>%1 Objekte löschen</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>„%1“ von „%2“ ändern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in no project; nothing was changed.</source>
        <translation>„%1“ ist in keinem Projekt; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>„%1“ von „%2“ entfernen</translation>
    </message>
</context>
<context>
    <name>vxPlot</name>
    <message>
        <source>storage and loss modulus</source>
        <translation>Speicher- und Verlustmodul</translation>
    </message>
    <message>
        <source>uniaxial</source>
        <translation>einachsig</translation>
    </message>
    <message>
        <source>equibiaxial</source>
        <translation>gleich-zweiachsig</translation>
    </message>
    <message>
        <source>planar</source>
        <translation>planar</translation>
    </message>
    <message>
        <source>simple shear</source>
        <translation>einfache Scherung</translation>
    </message>
    <message>
        <source>volumetric</source>
        <translation>volumetrisch</translation>
    </message>
    <message>
        <source>hardening</source>
        <translation>Verfestigung</translation>
    </message>
    <message>
        <source>tensile test</source>
        <translation>Zugversuch</translation>
    </message>
    <message>
        <source>yield surface</source>
        <translation>Fließfläche</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>Kriechen</translation>
    </message>
    <message>
        <source>creep rate</source>
        <translation>Kriechrate</translation>
    </message>
    <message>
        <source>relaxation</source>
        <translation>Relaxation</translation>
    </message>
    <message>
        <source>shear creep</source>
        <translation>Scherkriechen</translation>
    </message>
    <message>
        <source>storage and loss</source>
        <translation>Speicherung und Verlust</translation>
    </message>
    <message>
        <source>%1 / cohesion</source>
        <translation>%1 / Kohäsion</translation>
    </message>
    <message>
        <source>%1 × shear modulus</source>
        <translation>%1 × Schubmodul</translation>
    </message>
    <message>
        <source>%1 / shear modulus</source>
        <translation>%1 / Schubmodul</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>unstable</source>
        <translation>instabil</translation>
    </message>
    <message>
        <source>The legend shows the first %1 of %2 curves.</source>
        <translation>Die Legende zeigt die ersten %1 von %2 Kurven.</translation>
    </message>
    <message>
        <source>Points that are not greater than 0 and missing on a logarithmic axis: %1.</source>
        <translation>Punkte, die nicht größer als 0 sind und auf einer logarithmischen Achse fehlen: %1.</translation>
    </message>
    <message>
        <source>%1: unstable</source>
        <translation>%1: instabil</translation>
    </message>
    <message>
        <source>%1 (not measured)</source>
        <translation>%1 (nicht gemessen)</translation>
    </message>
</context>
<context>
    <name>vxUnits::Message</name>
    <message>
        <source>Did you mean &quot;%1&quot;?</source>
        <translation>Meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>Nothing was typed; a number is needed.</source>
        <translation>Es wurde nichts eingegeben; eine Zahl ist nötig.</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>Der Text ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not begin with a number.</source>
        <translation>„%1“ beginnt nicht mit einer Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number.</source>
        <translation>„%1“ ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a hexadecimal number; write it in decimals.</source>
        <translation>„%1“ ist eine Hexadezimalzahl; schreiben Sie sie dezimal.</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; has no digits.</source>
        <translation>Der Exponent in „%1“ hat keine Ziffern.</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; is not a whole number.</source>
        <translation>Der Exponent in „%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; must be written with the letter e.</source>
        <translation>Der Exponent in „%1“ muss mit dem Buchstaben e geschrieben werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one decimal point.</source>
        <translation>„%1“ hat mehr als einen Dezimalpunkt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a decimal comma; the decimal sign is a point.</source>
        <translation>„%1“ hat ein Dezimalkomma; das Dezimalzeichen ist ein Punkt.</translation>
    </message>
    <message>
        <source>The comma in &quot;%1&quot; may separate decimals or thousands; write %2 or %3.</source>
        <translation>Das Komma in „%1“ kann Dezimalen oder Tausender trennen; schreiben Sie %2 oder %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has digits in groups; write the number without separators.</source>
        <translation>„%1“ hat Ziffern in Gruppen; schreiben Sie die Zahl ohne Trennzeichen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one number; one number is needed.</source>
        <translation>„%1“ enthält mehr als eine Zahl; eine Zahl ist nötig.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside the range of numbers, 1e-308 to 1e308.</source>
        <translation>„%1“ liegt außerhalb des Zahlenbereichs 1e-308 bis 1e308.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains the character %2, which no number and no unit has.</source>
        <translation>„%1“ enthält das Zeichen %2, das in keiner Zahl und keiner Einheit vorkommt.</translation>
    </message>
    <message>
        <source>A unit is missing in &quot;%1&quot; after &quot;%2&quot;.</source>
        <translation>In „%1“ fehlt nach „%2“ eine Einheit.</translation>
    </message>
    <message>
        <source>A power is missing in the unit &quot;%1&quot;.</source>
        <translation>In der Einheit „%1“ fehlt ein Exponent.</translation>
    </message>
    <message>
        <source>A power in the unit &quot;%1&quot; is not between -50 and 50.</source>
        <translation>Ein Exponent in der Einheit „%1“ liegt nicht zwischen -50 und 50.</translation>
    </message>
    <message>
        <source>A parenthesis in the unit &quot;%1&quot; is not closed.</source>
        <translation>Eine Klammer in der Einheit „%1“ ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A parenthesis in the unit &quot;%1&quot; is closed but not opened.</source>
        <translation>Eine Klammer in der Einheit „%1“ ist geschlossen, aber nicht geöffnet.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has more than 40 parts.</source>
        <translation>Die Einheit „%1“ hat mehr als 40 Teile.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has more than 20 parentheses inside each other.</source>
        <translation>Die Einheit „%1“ hat mehr als 20 verschachtelte Klammern.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is not known.</source>
        <translation>Die Einheit „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one meaning; write %2.</source>
        <translation>„%1“ hat mehrere Bedeutungen; schreiben Sie %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; a unit such as %3 is needed.</source>
        <translation>„%1“ ist eine Angabe für: %2; nötig ist eine Einheit wie %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %4 needs a unit such as %3.</source>
        <translation>„%1“ ist eine Angabe für: %2; %4 benötigt eine Einheit wie %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %3 is a pure number.</source>
        <translation>„%1“ ist eine Angabe für: %2; %3 ist eine reine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %4 is its reciprocal and needs a unit such as %3.</source>
        <translation>„%1“ ist eine Angabe für: %2; %4 ist der Kehrwert und benötigt eine Einheit wie %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a temperature; a difference of temperatures is needed.</source>
        <translation>„%1“ ist eine Temperatur; nötig ist eine Temperaturdifferenz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is below the absolute zero of temperature.</source>
        <translation>„%1“ liegt unter dem absoluten Nullpunkt der Temperatur.</translation>
    </message>
    <message>
        <source>%1 is a word; it takes no number.</source>
        <translation>%1 ist ein Wort und nimmt keine Zahl an.</translation>
    </message>
    <message>
        <source>%1 is a switch; it takes no number.</source>
        <translation>%1 ist ein Schalter und nimmt keine Zahl an.</translation>
    </message>
    <message>
        <source>No quantity has the id %1.</source>
        <translation>Keine Größe hat die Kennung %1.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is not built in, and the database of units cannot be read: %2. Install the data of UDUNITS-2, or have the environment variable UDUNITS2_XML_PATH name the file udunits2.xml.</source>
        <translation>Die Einheit „%1“ ist nicht eingebaut, und die Einheitendatenbank kann nicht gelesen werden: %2. Installieren Sie die Daten von UDUNITS-2, oder geben Sie in der Umgebungsvariablen UDUNITS2_XML_PATH die Datei udunits2.xml an.</translation>
    </message>
    <message>
        <source>Number %1 of the list is missing.</source>
        <translation>Die Zahl %1 der Liste fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no unit. Give one unit after the last number, or a unit after each number.</source>
        <translation>„%1“ hat keine Einheit. Geben Sie eine Einheit nach der letzten Zahl an, oder eine nach jeder Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like decimals after a comma. The decimal sign is a point; commas separate the numbers of a list.</source>
        <translation>„%1“ sieht wie Dezimalen nach einem Komma aus. Das Dezimalzeichen ist ein Punkt; Kommas trennen die Zahlen einer Liste.</translation>
    </message>
    <message>
        <source>A unit system needs a name (%1) or its base units (%2).</source>
        <translation>Ein Einheitensystem benötigt einen Namen (%1) oder seine Basiseinheiten (%2).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not begin with one of length, mass, time, temperature and current.</source>
        <translation>„%1“ beginnt nicht mit length, mass, time, temperature oder current.</translation>
    </message>
    <message>
        <source>The unit system gives the unit of %1 twice.</source>
        <translation>Das Einheitensystem gibt die Einheit von %1 zweimal an.</translation>
    </message>
    <message>
        <source>The unit system gives no unit of %1.</source>
        <translation>Das Einheitensystem gibt keine Einheit von %1 an.</translation>
    </message>
    <message>
        <source>cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.</source>
        <translation>cal ist die Internationale Tafelkalorie, 4.1868 J; cal_th ist 4.184 J.</translation>
    </message>
    <message>
        <source>Btu is the International Table unit, 1055.05585262 J; Btu_th is 1054.35026 J.</source>
        <translation>Btu ist die Einheit der Internationalen Tafel, 1055.05585262 J; Btu_th ist 1054.35026 J.</translation>
    </message>
    <message>
        <source>The year has 365.25 days.</source>
        <translation>Das Jahr hat 365.25 Tage.</translation>
    </message>
    <message>
        <source>oz is the avoirdupois ounce, 1/16 lb; the ounce of force is ozf.</source>
        <translation>oz ist die Avoirdupois-Unze, 1/16 lb; die Unze als Kraft ist ozf.</translation>
    </message>
    <message>
        <source>The gallon is the gallon of the United States, 231 in^3.</source>
        <translation>Die Gallone ist die der Vereinigten Staaten, 231 in^3.</translation>
    </message>
    <message>
        <source>hp is 550 ft lbf/s; the metric horsepower is PS.</source>
        <translation>hp ist 550 ft lbf/s; die metrische Pferdestärke ist PS.</translation>
    </message>
    <message>
        <source>100 %IACS is 58 MS/m (IEC 60028).</source>
        <translation>100 %IACS sind 58 MS/m (IEC 60028).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taken from the database of UDUNITS, with as many digits as it has there.</source>
        <translation>„%1“ stammt aus der Datenbank von UDUNITS, mit so vielen Stellen wie dort.</translation>
    </message>
    <message>
        <source>%1 is not a finite number.</source>
        <translation>%1 ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>%1 = %2: the value must be above 0.</source>
        <translation>%1 = %2: Der Wert muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>%1 = %2: the value must not be negative.</source>
        <translation>%1 = %2: Der Wert darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>%1 = %2 is below what known materials have, %5 (%7) to %6 (%8).</source>
        <translation>%1 = %2 liegt unter den Werten bekannter Materialien, %5 (%7) bis %6 (%8).</translation>
    </message>
    <message>
        <source>%1 = %2 is above what known materials have, %5 (%7) to %6 (%8).</source>
        <translation>%1 = %2 liegt über den Werten bekannter Materialien, %5 (%7) bis %6 (%8).</translation>
    </message>
    <message>
        <source>%1 = %2 is outside -1 to 0.5; such a solid would release energy by itself.</source>
        <translation>%1 = %2 liegt außerhalb von -1 bis 0.5; ein solcher Körper würde von selbst Energie abgeben.</translation>
    </message>
    <message>
        <source>%1 = %2 is so near 0.5 that elements lock; take a hyperelastic model, or at most %6.</source>
        <translation>%1 = %2 ist so nahe an 0.5, dass Elemente sperren; nehmen Sie ein hyperelastisches Modell oder höchstens %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: only rubber and gels are above %6.</source>
        <translation>%1 = %2 mit %3: Nur Gummi und Gele liegen über %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a wave speed of %4; known solids of such a density have %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt eine Wellengeschwindigkeit von %4; bekannte Festkörper dieser Dichte haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: known solids so light have at most %6.</source>
        <translation>%1 = %2 mit %3: Bekannte so leichte Festkörper haben höchstens %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a heat capacity of %4; known matter has %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt eine Wärmekapazität von %4; bekannte Stoffe haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a thermal diffusivity of %4; known materials have %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt eine Temperaturleitfähigkeit von %4; bekannte Materialien haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a Lorenz number of %4; known metals have %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt eine Lorenz-Zahl von %4; bekannte Metalle haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the moduli give speeds from %5 to %6.</source>
        <translation>%1 = %2 mit %3: Die Moduln ergeben Geschwindigkeiten von %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a bulk modulus of %4; known fluids of such a density have %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt einen Kompressionsmodul von %4; bekannte Fluide dieser Dichte haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: heat and conductivity are those of water, which has %5 to %6.</source>
        <translation>%1 = %2 mit %3: Wärme und Leitfähigkeit sind die von Wasser, das %5 bis %6 hat.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial modulus of the hyperelastic model is %4 times Young&apos;s modulus; %5 to %6 times is sensible.</source>
        <translation>%1 = %2 mit %3: Der Anfangsmodul des hyperelastischen Modells ist das %4-Fache des Elastizitätsmoduls; sinnvoll ist das %5- bis %6-Fache.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial bulk modulus is %4 times the shear modulus; known rubbers and gels have %5 to %6 times.</source>
        <translation>%1 = %2 mit %3: Der anfängliche Kompressionsmodul ist das %4-Fache des Schubmoduls; bei bekannten Gummis und Gelen ist es das %5- bis %6-Fache.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial shear modulus is %4; it must be above 0.</source>
        <translation>%1 = %2 mit %3: Der anfängliche Schubmodul ist %4; er muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>%1 has %4 numbers and %3; each strain needs one stress.</source>
        <translation>%1 hat %4 Zahlen und %3; jede Dehnung benötigt eine Spannung.</translation>
    </message>
    <message>
        <source>%1 begins with %4; the first plastic strain is 0, at the first yield.</source>
        <translation>%1 beginnt mit %4; die erste plastische Dehnung ist 0, beim ersten Fließen.</translation>
    </message>
    <message>
        <source>%1 does not rise from %5 to %4.</source>
        <translation>%1 steigt von %5 zu %4 nicht an.</translation>
    </message>
    <message>
        <source>%1 falls below %5 to %4; hardening does not fall.</source>
        <translation>%1 fällt unter %5 auf %4; Verfestigung fällt nicht.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a strain rate of %4 at a thousandth of the modulus; %5 to %6 is within reach.</source>
        <translation>%1 = %2 mit %3 ergibt bei einem Tausendstel des Moduls eine Dehnrate von %4; möglich sind %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 does not fit the other values.</source>
        <translation>%1 = %2 passt nicht zu den anderen Werten.</translation>
    </message>
    <message>
        <source>%1 is usual for %2: multiply by %3</source>
        <translation>%1 ist üblich für %2: mit %3 multiplizieren</translation>
    </message>
    <message>
        <source>%1 would not be doubted: multiply by %2</source>
        <translation>%1 wäre nicht zweifelhaft: mit %2 multiplizieren</translation>
    </message>
    <message>
        <source>%1 is usual for the resistivity of %2: take the reciprocal</source>
        <translation>%1 ist üblich für den spezifischen Widerstand von %2: den Kehrwert nehmen</translation>
    </message>
    <message>
        <source>The stresses look like %1: convert them</source>
        <translation>Die Spannungen sehen wie %1 aus: umrechnen</translation>
    </message>
    <message>
        <source>The values look like %1: convert the material</source>
        <translation>Die Werte sehen wie %1 aus: das Material umrechnen</translation>
    </message>
    <message>
        <source>A quotation mark is not closed.</source>
        <translation>Ein Anführungszeichen ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A condition is missing before &quot;%1&quot;.</source>
        <translation>Vor „%1“ fehlt eine Bedingung.</translation>
    </message>
    <message>
        <source>A condition is missing after &quot;%1&quot;.</source>
        <translation>Nach „%1“ fehlt eine Bedingung.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed.</source>
        <translation>Eine Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A parenthesis is closed but not opened.</source>
        <translation>Eine Klammer ist geschlossen, aber nicht geöffnet.</translation>
    </message>
    <message>
        <source>A quantity is missing before &quot;%1&quot;.</source>
        <translation>Vor „%1“ fehlt eine Größe.</translation>
    </message>
    <message>
        <source>A quantity is missing after &quot;%1&quot;.</source>
        <translation>Nach „%1“ fehlt eine Größe.</translation>
    </message>
    <message>
        <source>No quantity is called &quot;%1&quot;.</source>
        <translation>Keine Größe heißt „%1“.</translation>
    </message>
    <message>
        <source>A value is missing after &quot;%1&quot;.</source>
        <translation>Nach „%1“ fehlt ein Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; follows a comparison; write &quot;and&quot; between two comparisons.</source>
        <translation>„%1“ folgt auf einen Vergleich; schreiben Sie „and“ zwischen zwei Vergleiche.</translation>
    </message>
    <message>
        <source>Write the quantity before the value.</source>
        <translation>Schreiben Sie die Größe vor den Wert.</translation>
    </message>
    <message>
        <source>%1 is a word; only &quot;=&quot; and &quot;!=&quot; compare it.</source>
        <translation>%1 ist ein Wort; nur „=“ und „!=“ vergleichen es.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2, which is one of %3.</source>
        <translation>„%1“ ist kein Wert von %2; möglich sind %3.</translation>
    </message>
    <message>
        <source>%1 is a switch and has no value; write &quot;has&quot;.</source>
        <translation>%1 ist ein Schalter ohne Wert; schreiben Sie „has“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a range; only &quot;=&quot; and &quot;!=&quot; compare it.</source>
        <translation>„%1“ ist ein Bereich; nur „=“ und „!=“ vergleichen ihn.</translation>
    </message>
    <message>
        <source>The range &quot;%1&quot; needs a number on each side of &quot;..&quot;.</source>
        <translation>Der Bereich „%1“ braucht auf jeder Seite von „..“ eine Zahl.</translation>
    </message>
    <message>
        <source>The unit of %1 depends on other values of each material; only numbers in SI compare it.</source>
        <translation>Die Einheit von %1 hängt von anderen Werten jedes Materials ab; nur Zahlen in SI vergleichen sie.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; must not contain the number %2.</source>
        <translation>Die Einheit „%1“ darf die Zahl %2 nicht enthalten.</translation>
    </message>
    <message>
        <source>A power in the unit &quot;%1&quot; has an exponent; write the power as a plain number.</source>
        <translation>Eine Potenz in der Einheit „%1“ hat einen Exponenten; schreiben Sie die Potenz als einfache Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a difference of temperatures; a temperature is needed.</source>
        <translation>„%1“ ist eine Temperaturdifferenz; benötigt wird eine Temperatur.</translation>
    </message>
    <message>
        <source>The comma in &quot;%1&quot; may be a decimal sign or separate two numbers; write &quot;%2&quot; or &quot;%3&quot;.</source>
        <translation>Das Komma in „%1“ kann ein Dezimalzeichen sein oder zwei Zahlen trennen; schreiben Sie „%2“ oder „%3“.</translation>
    </message>
    <message>
        <source>The stresses look like %1, and the density like %2: convert them</source>
        <translation>Die Spannungen sehen nach %1 aus, die Dichte nach %2: rechnen Sie sie um</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2 and %3, which are not given; give them first.</source>
        <translation>Die Einheit von %1 hängt von %2 und %3 ab, die nicht angegeben sind; geben Sie diese zuerst an.</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which is not given; give it first.</source>
        <translation>Die Einheit von %1 hängt von %2 ab; diese Größe ist nicht angegeben; geben Sie sie zuerst an.</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which is not between -50 and 50; convert the number to SI units and write it without a unit.</source>
        <translation>Die Einheit von %1 hängt von %2 ab, und dieser Wert liegt nicht zwischen -50 und 50; rechnen Sie die Zahl in SI-Einheiten um und geben Sie sie ohne Einheit ein.</translation>
    </message>
    <message>
        <source>The stresses look like %1, the density like %2, and the specific heat like %3: convert them</source>
        <translation>Die Spannungen sehen nach %1 aus, die Dichte nach %2 und die spezifische Wärmekapazität nach %3: Rechnen Sie sie um</translation>
    </message>
    <message>
        <source>More than %1 parentheses and &quot;not&quot; are inside each other.</source>
        <translation>Mehr als %1 Klammern und „not“ sind ineinander geschachtelt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known unit; write &quot;and&quot; before another condition.</source>
        <translation>„%1“ ist keine bekannte Einheit; schreiben Sie „and“ vor eine weitere Bedingung.</translation>
    </message>
    <message>
        <source>Searched in labels; did you mean &quot;%1&quot;?</source>
        <translation>In den Bezeichnungen gesucht; meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a ratio of yield stress to modulus of %4; known solids have %5 to %6.</source>
        <translation>%1 = %2 mit %3 ergibt ein Verhältnis von Fließspannung zu Modul von %4; bekannte Festkörper haben %5 bis %6.</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a ratio of hardening to modulus of %4; known metals have %5 to %6, or 0.</source>
        <translation>%1 = %2 mit %3 ergibt ein Verhältnis von Verfestigung zu Modul von %4; bekannte Metalle haben %5 bis %6 oder 0.</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, but are in Pa: convert them</source>
        <translation>Die Zahlen der Spannungen sehen nach %1 aus, stehen aber in Pa: umrechnen</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, that of the density like %2, but they are in SI: convert them</source>
        <translation>Die Zahlen der Spannungen sehen nach %1 aus, die der Dichte nach %2, sie stehen aber in SI: umrechnen</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, that of the density like %2, that of the specific heat like %3, but they are in SI: convert them</source>
        <translation>Die Zahlen der Spannungen sehen nach %1 aus, die der Dichte nach %2, die der spezifischen Wärmekapazität nach %3, sie stehen aber in SI: umrechnen</translation>
    </message>
    <message>
        <source>The numbers look like %1, but are in SI: convert the material</source>
        <translation>Die Zahlen sehen nach %1 aus, stehen aber in SI: den Werkstoff umrechnen</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which cannot be read; correct it first.</source>
        <translation>Die Einheit von %1 hängt von %2 ab, das nicht gelesen werden kann; berichtigen Sie es zuerst.</translation>
    </message>
    <message>
        <source>The unit of %1 is missing; a unit such as %2 is needed.</source>
        <translation>Die Einheit von %1 fehlt; nötig ist eine Einheit wie %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a number; %2 needs a unit alone, such as %3.</source>
        <translation>„%1“ beginnt mit einer Zahl; %2 braucht nur eine Einheit, etwa %3.</translation>
    </message>
    <message>
        <source>carried</source>
        <translation>übernommen</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>umgerechnet</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>angenähert</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>verloren</translation>
    </message>
    <message>
        <source>The deck is in the unit system %1.</source>
        <translation>Die Solverdatei ist im Einheitensystem %1.</translation>
    </message>
    <message>
        <source>The deck is in %1, because the solver would misread numbers in %2.</source>
        <translation>Die Solverdatei ist in %1, weil der Solver Zahlen in %2 falsch lesen würde.</translation>
    </message>
    <message>
        <source>renamed &quot;%1&quot;, because the format does not take the name or has it already</source>
        <translation>umbenannt in „%1“, weil das Format den Namen nicht zulässt oder schon hat</translation>
    </message>
    <message>
        <source>has the number %1 instead of %2</source>
        <translation>hat die Nummer %1 statt %2</translation>
    </message>
    <message>
        <source>in %1 instead of %2</source>
        <translation>in %1 statt %2</translation>
    </message>
    <message>
        <source>as two points of the curve, up to a plastic strain of %1</source>
        <translation>als zwei Punkte der Kurve, bis zu einer plastischen Dehnung von %1</translation>
    </message>
    <message>
        <source>the initial yield stress is the point at plastic strain 0</source>
        <translation>die Anfangsfließspannung ist der Punkt bei der plastischen Dehnung 0</translation>
    </message>
    <message>
        <source>the solver has no incompressible solid; the bulk modulus is %1 times the initial shear modulus</source>
        <translation>der Solver hat keinen inkompressiblen Festkörper; der Kompressionsmodul ist das %1-Fache des Anfangsschubmoduls</translation>
    </message>
    <message>
        <source>as the points of the curve</source>
        <translation>als Punkte der Kurve</translation>
    </message>
    <message>
        <source>the number is not finite in the unit system of the deck</source>
        <translation>die Zahl ist im Einheitensystem der Solverdatei nicht endlich</translation>
    </message>
    <message>
        <source>the catalogue does not have the quantity</source>
        <translation>der Katalog hat die Größe nicht</translation>
    </message>
    <message>
        <source>the card needs %1 too</source>
        <translation>die Karte braucht auch: %1</translation>
    </message>
    <message>
        <source>the model needs linear elasticity</source>
        <translation>das Modell braucht lineare Elastizität</translation>
    </message>
    <message>
        <source>%1 = %2 is not possible; the value must be %3</source>
        <translation>%1 = %2 ist nicht möglich; der Wert muss %3 sein</translation>
    </message>
    <message>
        <source>the material model does not use it</source>
        <translation>das Materialmodell verwendet es nicht</translation>
    </message>
    <message>
        <source>the hyperelastic model replaces it</source>
        <translation>das hyperelastische Modell ersetzt es</translation>
    </message>
    <message>
        <source>more than one hyperelastic model is switched on</source>
        <translation>mehr als ein hyperelastisches Modell ist eingeschaltet</translation>
    </message>
    <message>
        <source>the model is not switched on</source>
        <translation>das Modell ist nicht eingeschaltet</translation>
    </message>
    <message>
        <source>the format has no card for the yield type &quot;%1&quot; with the quantities of the catalogue</source>
        <translation>das Format hat keine Karte für die Fließart „%1“ mit den Größen des Katalogs</translation>
    </message>
    <message>
        <source>the hardening type &quot;%1&quot; needs a curve of yield stresses and plastic strains</source>
        <translation>die Verfestigungsart „%1“ braucht eine Kurve aus Fließspannungen und plastischen Dehnungen</translation>
    </message>
    <message>
        <source>the catalogue does not have the shares of isotropic and kinematic hardening</source>
        <translation>der Katalog hat die Anteile isotroper und kinematischer Verfestigung nicht</translation>
    </message>
    <message>
        <source>there are %1 yield stresses and %2 plastic strains</source>
        <translation>es gibt %1 Fließspannungen und %2 plastische Dehnungen</translation>
    </message>
    <message>
        <source>the curve has no points</source>
        <translation>die Kurve hat keine Punkte</translation>
    </message>
    <message>
        <source>the first plastic strain is %1, but the solver takes the first stress as the yield stress at 0; add a point at 0</source>
        <translation>die erste plastische Dehnung ist %1, aber der Solver nimmt die erste Spannung als Fließspannung bei 0; fügen Sie einen Punkt bei 0 hinzu</translation>
    </message>
    <message>
        <source>the plastic strains do not ascend</source>
        <translation>die plastischen Dehnungen steigen nicht</translation>
    </message>
    <message>
        <source>the curve begins with another yield stress, %1</source>
        <translation>die Kurve beginnt mit einer anderen Fließspannung, %1</translation>
    </message>
    <message>
        <source>the solver replaces %1 by %2; choose another unit system</source>
        <translation>der Solver ersetzt %1 durch %2; wählen Sie ein anderes Einheitensystem</translation>
    </message>
    <message>
        <source>beside plasticity, the solver applies the law to the overstress only</source>
        <translation>neben Plastizität wendet der Solver das Gesetz nur auf die Überspannung an</translation>
    </message>
    <message>
        <source>the unit of the factor depends on both exponents, of which one is missing</source>
        <translation>die Einheit des Faktors hängt von beiden Exponenten ab, von denen einer fehlt</translation>
    </message>
    <message>
        <source>a conductivity of %1 has no resistivity</source>
        <translation>eine Leitfähigkeit von %1 hat keinen spezifischen Widerstand</translation>
    </message>
    <message>
        <source>as its reciprocal, the resistivity</source>
        <translation>als Kehrwert, der spezifische Widerstand</translation>
    </message>
    <message>
        <source>as the initial shear modulus, which is twice the constant</source>
        <translation>als Anfangsschubmodul, der das Doppelte der Konstante ist</translation>
    </message>
    <message>
        <source>as the tangent modulus E H / (E + H), the slope of stress over total strain</source>
        <translation>als Tangentenmodul E H / (E + H), die Steigung der Spannung über der Gesamtdehnung</translation>
    </message>
    <message>
        <source>as total strains, plastic strain + stress / E</source>
        <translation>als Gesamtdehnungen, plastische Dehnung + Spannung / E</translation>
    </message>
    <message>
        <source>the format has no eight-chain model</source>
        <translation>das Format hat kein Achtketten-Modell</translation>
    </message>
    <message>
        <source>as the bulk modulus 2 / D1</source>
        <translation>als Kompressionsmodul 2 / D1</translation>
    </message>
    <message>
        <source>as half the bulk modulus, 1 / D1</source>
        <translation>als halber Kompressionsmodul, 1 / D1</translation>
    </message>
    <message>
        <source>as Poisson&apos;s ratio, from the bulk modulus 2 / D1 and the initial shear modulus</source>
        <translation>als Querkontraktionszahl, aus dem Kompressionsmodul 2 / D1 und dem Anfangsschubmodul</translation>
    </message>
    <message>
        <source>as the number of links of a chain, the square of the stretch</source>
        <translation>als Zahl der Glieder einer Kette, das Quadrat der Streckung</translation>
    </message>
    <message>
        <source>the solid has the number of the material; a fluid with the same number is not possible</source>
        <translation>der Festkörper hat die Nummer des Materials; ein Fluid mit derselben Nummer ist nicht möglich</translation>
    </message>
    <message>
        <source>the solver takes only exponents with %1 and %2</source>
        <translation>der Solver nimmt nur Exponenten mit %1 und %2</translation>
    </message>
    <message>
        <source>as the total form, strain = A / (M + 1) stress^N time^(M + 1)</source>
        <translation>als Gesamtform, Dehnung = A / (M + 1) Spannung^N Zeit^(M + 1)</translation>
    </message>
    <message>
        <source>the card hardens isotropically along its curve</source>
        <translation>die Karte verfestigt isotrop entlang ihrer Kurve</translation>
    </message>
    <message>
        <source>another model of the material has its number</source>
        <translation>ein anderes Modell des Materials hat die Nummer</translation>
    </message>
    <message>
        <source>as the long-term shear modulus (1 - g) G</source>
        <translation>als Langzeit-Schubmodul (1 - g) G</translation>
    </message>
    <message>
        <source>as the decay constant, 1 / tau</source>
        <translation>als Abklingkonstante, 1 / tau</translation>
    </message>
    <message>
        <source>as a parameter of the yield stress</source>
        <translation>als Parameter der Fließspannung</translation>
    </message>
    <message>
        <source>no card of the material has a place for it</source>
        <translation>keine Karte des Materials hat einen Platz dafür</translation>
    </message>
    <message>
        <source>The format has no numbers of materials; the chosen number has no effect.</source>
        <translation>Das Format hat keine Nummern von Materialien; die gewählte Nummer wirkt nicht.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>the deck does not say in which units its numbers are; give the unit system</source>
        <translation>die Solverdatei nennt die Einheiten ihrer Zahlen nicht; geben Sie das Einheitensystem an</translation>
    </message>
    <message>
        <source>the deck does not say in which units its numbers are; give the unit system; the numbers look like %1</source>
        <translation>die Solverdatei nennt die Einheiten ihrer Zahlen nicht; geben Sie das Einheitensystem an; die Zahlen sehen nach %1 aus</translation>
    </message>
    <message>
        <source>decks of %1 can be written, but not read</source>
        <translation>Dateien von %1 können geschrieben, aber nicht gelesen werden</translation>
    </message>
    <message>
        <source>the content is binary</source>
        <translation>der Inhalt ist binär</translation>
    </message>
    <message>
        <source>the file cannot be read to its end</source>
        <translation>die Datei kann nicht bis zu ihrem Ende gelesen werden</translation>
    </message>
    <message>
        <source>The numbers of the deck are read in the unit system %1.</source>
        <translation>Die Zahlen der Solverdatei werden im Einheitensystem %1 gelesen.</translation>
    </message>
    <message>
        <source>The deck declares the unit system %1.</source>
        <translation>Die Solverdatei nennt das Einheitensystem %1.</translation>
    </message>
    <message>
        <source>The deck declares the unit system %1, but is read in %2, which was chosen.</source>
        <translation>Die Solverdatei nennt das Einheitensystem %1, wird aber in %2 gelesen, das gewählt wurde.</translation>
    </message>
    <message>
        <source>Not of materials, and therefore not taken: %1.</source>
        <translation>Nicht von Materialien und deshalb nicht übernommen: %1.</translation>
    </message>
    <message>
        <source>The file includes &quot;%1&quot; in line %2, which is not read; read this file too.</source>
        <translation>Die Datei bindet in Zeile %2 „%1“ ein, das nicht gelesen wird; lesen Sie diese Datei auch ein.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 in %2</translation>
    </message>
    <message>
        <source>the number is too large or too small in the unit of the catalogue</source>
        <translation>die Zahl ist in der Einheit des Katalogs zu groß oder zu klein</translation>
    </message>
    <message>
        <source>the catalogue has no quantity for it</source>
        <translation>der Katalog hat dafür keine Größe</translation>
    </message>
    <message>
        <source>has no name in the deck</source>
        <translation>hat in der Solverdatei keinen Namen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 has too few numbers; the least is %2</source>
        <translation>%1 hat zu wenige Zahlen; es müssen mindestens %2 sein</translation>
    </message>
    <message>
        <source>%1 has more than %2 lines</source>
        <translation>%1 hat mehr als %2 Zeilen</translation>
    </message>
    <message>
        <source>the line is longer than %1 characters</source>
        <translation>die Zeile ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>it is a table over temperature, and the catalogue has no such tables</source>
        <translation>es ist eine Tabelle über der Temperatur, und der Katalog hat keine solchen Tabellen</translation>
    </message>
    <message>
        <source>it depends on more than the temperature</source>
        <translation>es hängt von mehr als der Temperatur ab</translation>
    </message>
    <message>
        <source>%1 is not isotropic</source>
        <translation>%1 ist nicht isotrop</translation>
    </message>
    <message>
        <source>the catalogue has no model for %1</source>
        <translation>der Katalog hat kein Modell für %1</translation>
    </message>
    <message>
        <source>the catalogue has no constants C20 and C02</source>
        <translation>der Katalog hat keine Konstanten C20 und C02</translation>
    </message>
    <message>
        <source>the card of line %1 is replaced by another one of the same material in line %2</source>
        <translation>die Karte von Zeile %1 wird durch eine andere desselben Materials in Zeile %2 ersetzt</translation>
    </message>
    <message>
        <source>its numbers are in another file</source>
        <translation>die Zahlen stehen in einer anderen Datei</translation>
    </message>
    <message>
        <source>its numbers are parameters, which are not evaluated</source>
        <translation>die Zahlen sind Parameter, die nicht ausgewertet werden</translation>
    </message>
    <message>
        <source>the keyword is not known</source>
        <translation>das Schlüsselwort ist nicht bekannt</translation>
    </message>
    <message>
        <source>line %1: CalculiX reads only the first 20 characters of &quot;%2&quot;</source>
        <translation>Zeile %1: CalculiX liest nur die ersten 20 Zeichen von „%2“</translation>
    </message>
    <message>
        <source>from two points of the curve, up to a plastic strain of %1</source>
        <translation>aus zwei Punkten der Kurve, bis zu einer plastischen Dehnung von %1</translation>
    </message>
    <message>
        <source>from one point of the curve: no hardening</source>
        <translation>aus einem Punkt der Kurve: keine Verfestigung</translation>
    </message>
    <message>
        <source>from a polynomial of the strain energy</source>
        <translation>aus einem Polynom der Verzerrungsenergie</translation>
    </message>
    <message>
        <source>the term of D2 is not taken</source>
        <translation>der Term mit D2 wird nicht übernommen</translation>
    </message>
    <message>
        <source>0 is read as incompressible; CalculiX itself takes a bulk modulus of 20 shear moduli</source>
        <translation>0 wird als inkompressibel gelesen; CalculiX selbst nimmt einen Kompressionsmodul von 20 Schubmoduln</translation>
    </message>
    <message>
        <source>the deck has no value; the solver takes 0</source>
        <translation>die Solverdatei hat keinen Wert; der Solver nimmt 0</translation>
    </message>
    <message>
        <source>The creep law has no LAW. It is read as time hardening, as CalculiX does; relatives take strain hardening.</source>
        <translation>Das Kriechgesetz hat kein LAW. Es wird wie in CalculiX als Zeitverfestigung gelesen; verwandte Solver nehmen Dehnungsverfestigung.</translation>
    </message>
    <message>
        <source>it has %1 terms, and the catalogue has one</source>
        <translation>es hat %1 Terme, und der Katalog hat einen</translation>
    </message>
    <message>
        <source>the catalogue has no relaxation of the bulk modulus</source>
        <translation>der Katalog hat keine Relaxation des Kompressionsmoduls</translation>
    </message>
    <message>
        <source>from the long-term modulus, with a constant bulk modulus</source>
        <translation>aus dem Langzeitmodul, bei konstantem Kompressionsmodul</translation>
    </message>
    <message>
        <source>the shear modulus relaxes to 0, so that no elasticity of long term belongs to it</source>
        <translation>der Schubmodul relaxiert bis auf 0, so dass keine Langzeitelastizität dazu gehört</translation>
    </message>
    <message>
        <source>only the relaxation over time by a Prony series is read</source>
        <translation>nur die Relaxation über der Zeit als Prony-Reihe wird gelesen</translation>
    </message>
    <message>
        <source>it depends on the strain rate</source>
        <translation>es hängt von der Dehnrate ab</translation>
    </message>
    <message>
        <source>the first plastic strain is %1, not 0; check the curve</source>
        <translation>die erste plastische Dehnung ist %1, nicht 0; prüfen Sie die Kurve</translation>
    </message>
    <message>
        <source>the plastic strains do not ascend; check the curve</source>
        <translation>die plastischen Dehnungen steigen nicht; prüfen Sie die Kurve</translation>
    </message>
    <message>
        <source>from the bulk modulus and the density</source>
        <translation>aus dem Kompressionsmodul und der Dichte</translation>
    </message>
    <message>
        <source>the speed of sound needs a bulk modulus and a density above 0</source>
        <translation>die Schallgeschwindigkeit braucht einen Kompressionsmodul und eine Dichte über 0</translation>
    </message>
    <message>
        <source>%1 more cards are not taken</source>
        <translation>%1 weitere Karten werden nicht übernommen</translation>
    </message>
    <message>
        <source>the solver computes sound only as an analogy of heat conduction</source>
        <translation>der Solver berechnet Schall nur als Analogie der Wärmeleitung</translation>
    </message>
    <message>
        <source>switched on by the card</source>
        <translation>durch die Karte eingeschaltet</translation>
    </message>
    <message>
        <source>switched on by a parameter of the card</source>
        <translation>durch einen Parameter der Karte eingeschaltet</translation>
    </message>
    <message>
        <source>as polynomial of the second order whose other constants have no effect</source>
        <translation>als Polynom zweiter Ordnung, dessen andere Konstanten nicht wirken</translation>
    </message>
    <message>
        <source>0 is written as a bulk modulus of 500 shear moduli</source>
        <translation>0 wird als Kompressionsmodul von 500 Schubmoduln geschrieben</translation>
    </message>
    <message>
        <source>the card is of the yield criterion of Mises only</source>
        <translation>die Karte gilt nur für die Fließbedingung nach Mises</translation>
    </message>
    <message>
        <source>the solver has viscoplasticity only as a creep law of the overstress</source>
        <translation>der Solver hat Viskoplastizität nur als Kriechgesetz der Überspannung</translation>
    </message>
    <message>
        <source>the solver has no plasticity with internal friction</source>
        <translation>der Solver hat keine Plastizität mit innerer Reibung</translation>
    </message>
    <message>
        <source>as points of the curve of true stress over plastic strain</source>
        <translation>als Punkte der Kurve der wahren Spannung über der plastischen Dehnung</translation>
    </message>
    <message>
        <source>the solver has no viscoelastic material</source>
        <translation>der Solver hat kein viskoelastisches Material</translation>
    </message>
    <message>
        <source>the format has no card for it</source>
        <translation>das Format hat keine Karte dafür</translation>
    </message>
    <message>
        <source>the card also needs the number of a domain, which depends on the model</source>
        <translation>die Karte braucht auch die Nummer eines Gebiets, die vom Modell abhängt</translation>
    </message>
    <message>
        <source>as half the bulk modulus, 1 / D1; 0 as a bulk modulus of 500 shear moduli</source>
        <translation>als halber Kompressionsmodul, 1 / D1; 0 als Kompressionsmodul von 500 Schubmoduln</translation>
    </message>
    <message>
        <source>the card also needs a cohesion, which the catalogue does not have</source>
        <translation>die Karte braucht auch eine Kohäsion, die der Katalog nicht hat</translation>
    </message>
    <message>
        <source>as total strain, plastic strain + stress / E</source>
        <translation>als Gesamtdehnung, plastische Dehnung + Spannung / E</translation>
    </message>
    <message>
        <source>in NEO as the initial shear modulus, 2 C10</source>
        <translation>in NEO als Anfangsschubmodul, 2 C10</translation>
    </message>
    <message>
        <source>the card needs the exponent of a rate law, which the catalogue does not have</source>
        <translation>die Karte braucht den Exponenten eines Ratengesetzes, den der Katalog nicht hat</translation>
    </message>
    <message>
        <source>as the tangent modulus E H / (E + H)</source>
        <translation>als Tangentenmodul E H / (E + H)</translation>
    </message>
    <message>
        <source>as the resistivity, its reciprocal</source>
        <translation>als spezifischer Widerstand, der Kehrwert</translation>
    </message>
    <message>
        <source>as the number of links, the square of the stretch</source>
        <translation>als Zahl der Glieder, das Quadrat der Streckung</translation>
    </message>
    <message>
        <source>as Poisson&apos;s ratio, or as the bulk modulus 2 / D1; 0 as a bulk modulus of 500 shear moduli</source>
        <translation>als Querkontraktionszahl oder als Kompressionsmodul 2 / D1; 0 als Kompressionsmodul von 500 Schubmoduln</translation>
    </message>
    <message>
        <source>as the long-term shear modulus, (1 - g) G</source>
        <translation>als Langzeit-Schubmodul, (1 - g) G</translation>
    </message>
    <message>
        <source>the card also needs the kind of conductor, which depends on the model</source>
        <translation>die Karte braucht auch die Art des Leiters, die vom Modell abhängt</translation>
    </message>
    <message>
        <source>the solver has neo-Hookean solids only by E and nu, with another energy of volume</source>
        <translation>der Solver hat Neo-Hooke-Körper nur mit E und nu und einer anderen Volumenenergie</translation>
    </message>
    <message>
        <source>the solver has it only as a function that the user programs</source>
        <translation>der Solver hat es nur als Funktion, die der Benutzer programmiert</translation>
    </message>
    <message>
        <source>as the text on</source>
        <translation>als der Text on</translation>
    </message>
    <message>
        <source>as a parameter of the yield stress, if both lists have the same length</source>
        <translation>als Parameter der Fließspannung, wenn beide Listen gleich lang sind</translation>
    </message>
    <message>
        <source>the entry %1 has more than %2 fields</source>
        <translation>der Eintrag %1 hat mehr als %2 Felder</translation>
    </message>
    <message>
        <source>the material %1 has more than %2 entries</source>
        <translation>das Material %1 hat mehr als %2 Einträge</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of a material; %2 needs a whole number above 0</source>
        <translation>„%1“ ist keine Materialnummer; %2 braucht eine ganze Zahl über 0</translation>
    </message>
    <message>
        <source>the field %1 has &quot;%2&quot;, which is not a number</source>
        <translation>das Feld %1 enthält „%2“, und das ist keine Zahl</translation>
    </message>
    <message>
        <source>The catalogue has no quantities for %1 (number of entries: %2, first in line %3).</source>
        <translation>Der Katalog hat keine Größen für %1 (Anzahl der Einträge: %2, zuerst in Zeile %3).</translation>
    </message>
    <message>
        <source>another entry has this number; that of line %1 is not taken</source>
        <translation>ein anderer Eintrag hat diese Nummer; der in Zeile %1 wird nicht übernommen</translation>
    </message>
    <message>
        <source>the continuation &quot;%1&quot; of %2 is not in the file</source>
        <translation>die Fortsetzung „%1“ von %2 fehlt in der Datei</translation>
    </message>
    <message>
        <source>tables over temperature are not taken</source>
        <translation>Tabellen über der Temperatur werden nicht übernommen</translation>
    </message>
    <message>
        <source>the number contradicts the others of the material</source>
        <translation>die Zahl widerspricht den anderen des Materials</translation>
    </message>
    <message>
        <source>%1 is blank, which means %2</source>
        <translation>%1 ist leer, und das bedeutet %2</translation>
    </message>
    <message>
        <source>from the shear modulus: %1</source>
        <translation>aus dem Schubmodul: %1</translation>
    </message>
    <message>
        <source>from the bulk modulus: %1</source>
        <translation>aus dem Kompressionsmodul: %1</translation>
    </message>
    <message>
        <source>from half the bulk modulus, 1 / D1</source>
        <translation>aus dem halben Kompressionsmodul, 1 / D1</translation>
    </message>
    <message>
        <source>from the total form, strain = A / (M + 1) stress^N time^(M + 1)</source>
        <translation>aus der Gesamtform, Dehnung = A / (M + 1) Spannung^N Zeit^(M + 1)</translation>
    </message>
    <message>
        <source>from total strains, less stress / E</source>
        <translation>aus Gesamtdehnungen, abzüglich Spannung / E</translation>
    </message>
    <message>
        <source>from total strains, less stress / E; the first one is not exactly stress / E, but read as plastic strain 0</source>
        <translation>aus Gesamtdehnungen, abzüglich Spannung / E; die erste ist nicht genau Spannung / E, wird aber als plastische Dehnung 0 gelesen</translation>
    </message>
    <message>
        <source>from total strains, less stress / E; the slope up to the first stress is not E, but its plastic strain is read as 0</source>
        <translation>aus Gesamtdehnungen, abzüglich Spannung / E; die Steigung bis zur ersten Spannung ist nicht E, ihre plastische Dehnung wird aber als 0 gelesen</translation>
    </message>
    <message>
        <source>the points of compression are not taken</source>
        <translation>die Punkte unter Druck werden nicht übernommen</translation>
    </message>
    <message>
        <source>RHO of MAT4 is blank, which means 1: if the solver used the deck so, CP is the heat capacity of a volume</source>
        <translation>RHO von MAT4 ist leer, und das bedeutet 1: Wenn der Solver die Datei so benutzt hat, ist CP die Wärmekapazität eines Volumens</translation>
    </message>
    <message>
        <source>the catalogue has no quantity for %1, and without it the others would mean something else</source>
        <translation>der Katalog hat keine Größe für %1, und ohne sie würden die anderen etwas anderes bedeuten</translation>
    </message>
    <message>
        <source>only the creep law of type 300 with a, b and d is taken</source>
        <translation>nur das Kriechgesetz vom Typ 300 mit a, b und d wird übernommen</translation>
    </message>
    <message>
        <source>the table %1 is not in the file</source>
        <translation>die Tabelle %1 fehlt in der Datei</translation>
    </message>
    <message>
        <source>the table %1 is not read, because the tables of the file have more than %2 points</source>
        <translation>die Tabelle %1 wird nicht gelesen, weil die Tabellen der Datei mehr als %2 Punkte haben</translation>
    </message>
    <message>
        <source>the table does not have true stress over strain</source>
        <translation>die Tabelle enthält nicht die wahre Spannung über der Dehnung</translation>
    </message>
    <message>
        <source>the table is over total strain, but does not begin with the origin and the yield point</source>
        <translation>die Tabelle geht über die Gesamtdehnung, beginnt aber nicht mit dem Ursprung und dem Fließpunkt</translation>
    </message>
    <message>
        <source>the file has more than %1 MB; divide it into several files</source>
        <translation>die Datei hat mehr als %1 MB; teilen Sie sie auf mehrere Dateien auf</translation>
    </message>
    <message>
        <source>the XML is not well-formed: %1</source>
        <translation>das XML ist nicht wohlgeformt: %1</translation>
    </message>
    <message>
        <source>the file has a document type declaration (DOCTYPE), which is not read because it may define entities; remove it</source>
        <translation>die Datei hat eine Dokumenttypdeklaration (DOCTYPE), die nicht gelesen wird, weil sie Entitäten definieren kann; entfernen Sie sie</translation>
    </message>
    <message>
        <source>the file has no element MatML_Doc</source>
        <translation>die Datei hat kein Element MatML_Doc</translation>
    </message>
    <message>
        <source>The numbers of the file have their own units.</source>
        <translation>Die Zahlen der Datei haben ihre eigenen Einheiten.</translation>
    </message>
    <message>
        <source>the file does not declare the property</source>
        <translation>die Datei deklariert die Eigenschaft nicht</translation>
    </message>
    <message>
        <source>the property has no value</source>
        <translation>die Eigenschaft hat keinen Wert</translation>
    </message>
    <message>
        <source>the material has the quantity already</source>
        <translation>das Material hat die Größe schon</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>die Einheit „%1“ ist nicht bekannt</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not fit the quantity</source>
        <translation>die Einheit „%1“ passt nicht zu der Größe</translation>
    </message>
    <message>
        <source>the values depend on %1, which the catalogue does not have</source>
        <translation>die Werte hängen von %1 ab, was der Katalog nicht hat</translation>
    </message>
    <message>
        <source>the quantity does not take the word &quot;%1&quot;</source>
        <translation>die Größe nimmt das Wort „%1“ nicht an</translation>
    </message>
    <message>
        <source>rounded to a field of %1 characters</source>
        <translation>auf ein Feld von %1 Zeichen gerundet</translation>
    </message>
    <message>
        <source>the solver computes with errors if the factor is below %1; choose another unit system</source>
        <translation>der Solver rechnet fehlerhaft, wenn der Faktor unter %1 liegt; wählen Sie ein anderes Einheitensystem</translation>
    </message>
    <message>
        <source>the solver computes it right only in steps with large strains; write NLGEOM behind *STEP</source>
        <translation>der Solver rechnet es nur in Schritten mit großen Dehnungen richtig; schreiben Sie NLGEOM hinter *STEP</translation>
    </message>
    <message>
        <source>as the bulk modulus, the density times the square of the speed</source>
        <translation>als Kompressionsmodul, Dichte mal Quadrat der Geschwindigkeit</translation>
    </message>
    <message>
        <source>as the permittivity, times that of vacuum</source>
        <translation>als Permittivität, mit der des Vakuums multipliziert</translation>
    </message>
    <message>
        <source>as the permeability, times that of vacuum</source>
        <translation>als Permeabilität, mit der des Vakuums multipliziert</translation>
    </message>
    <message>
        <source>the deck declares the unit system %1 here, but %2 in a line before; divide it into decks of one unit system each</source>
        <translation>die Solverdatei gibt hier das Einheitensystem %1 an, in einer Zeile davor aber %2; teilen Sie sie in Dateien mit je einem Einheitensystem</translation>
    </message>
    <message>
        <source>from the absolute value, over that of vacuum</source>
        <translation>aus dem absoluten Wert, geteilt durch den des Vakuums</translation>
    </message>
    <message>
        <source>The file includes files in %1 more lines, which are not read.</source>
        <translation>Die Datei bindet in %1 weiteren Zeilen Dateien ein, die nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 more cards are not of materials.</source>
        <translation>%1 weitere Karten gehören nicht zu Materialien.</translation>
    </message>
    <message>
        <source>no quantity is read; the material is empty</source>
        <translation>keine Größe wird gelesen; das Material ist leer</translation>
    </message>
    <message>
        <source>%1: values at temperature %2; the temperature is not kept</source>
        <translation>%1: Werte bei der Temperatur %2; die Temperatur wird nicht übernommen</translation>
    </message>
    <message>
        <source>The catalogue has no quantities for %1 more kinds of entries.</source>
        <translation>Der Katalog hat keine Größen für %1 weitere Arten von Einträgen.</translation>
    </message>
    <message>
        <source>the table has no points</source>
        <translation>die Tabelle hat keine Punkte</translation>
    </message>
    <message>
        <source>the table needs ascending total strains (plastic strain plus stress / E), also in the digits of its fields</source>
        <translation>die Tabelle braucht aufsteigende Gesamtdehnungen (plastische Dehnung plus Spannung / E), auch in den Ziffern ihrer Felder</translation>
    </message>
    <message>
        <source>Any of these values may be wrong.</source>
        <translation>Jeder dieser Werte kann falsch sein.</translation>
    </message>
    <message>
        <source>The other values are those of %1, which has %2 to %3.</source>
        <translation>Die übrigen Werte passen zu %1; dafür sind %2 bis %3 üblich.</translation>
    </message>
    <message>
        <source>One possibility: %1 is usual for %2; then multiply by %3</source>
        <translation>Eine Möglichkeit: %1 ist üblich für %2; dann mit %3 multiplizieren</translation>
    </message>
    <message>
        <source>One possibility: %1 would not be doubted; then multiply by %2</source>
        <translation>Eine Möglichkeit: %1 wäre nicht zweifelhaft; dann mit %2 multiplizieren</translation>
    </message>
    <message>
        <source>the name is shortened to &quot;%1&quot;; the format takes %2 bytes of it</source>
        <translation>der Name ist auf „%1“ gekürzt; das Format nimmt %2 Byte davon</translation>
    </message>
    <message>
        <source>the material has no word for it</source>
        <translation>das Material hat kein Wort dafür</translation>
    </message>
    <message>
        <source>the material has no word for it; written as &quot;%1&quot;</source>
        <translation>das Material hat kein Wort dafür; geschrieben als „%1“</translation>
    </message>
    <message>
        <source>%1 materials (%2)</source>
        <translation>%1 Materialien (%2)</translation>
    </message>
    <message>
        <source>for example %1: %2</source>
        <translation>zum Beispiel %1: %2</translation>
    </message>
    <message>
        <source>line %1, %2: %3</source>
        <translation>Zeile %1, %2: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; exclude each other; remove one of them</source>
        <translation>„%1“ und „%2“ schließen einander aus; entfernen Sie eines davon</translation>
    </message>
    <message>
        <source>its specific heat differs from that of *SPECIFIC HEAT, which is taken</source>
        <translation>ihre spezifische Wärme weicht von der in *SPECIFIC HEAT ab, die übernommen wird</translation>
    </message>
    <message>
        <source>the parameter %1 is not evaluated; check the numbers</source>
        <translation>der Parameter %1 wird nicht ausgewertet; prüfen Sie die Zahlen</translation>
    </message>
    <message>
        <source>the other numbers of the material give it within 1 %: %1; the number itself is not kept</source>
        <translation>die anderen Zahlen des Materials ergeben sie auf 1 % genau: %1; die Zahl selbst bleibt nicht erhalten</translation>
    </message>
    <message>
        <source>the table replaces it</source>
        <translation>die Tabelle ersetzt es</translation>
    </message>
    <message>
        <source>the file has more than %1 elements and attributes; divide it into several files</source>
        <translation>die Datei hat mehr als %1 Elemente und Attribute; teilen Sie sie in mehrere Dateien</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; must follow the number without a blank.</source>
        <translation>Der Exponent in „%1“ muss ohne Leerzeichen auf die Zahl folgen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither the name of a unit system nor base units such as &quot;%2&quot;.</source>
        <translation>„%1“ ist weder der Name eines Einheitensystems noch eine Angabe von Grundeinheiten wie „%2“.</translation>
    </message>
    <message>
        <source>%1 ends where line %2 includes a file. If that file begins with more numbers of the card, they are missing.</source>
        <translation>%1 endet dort, wo Zeile %2 eine Datei einbindet. Beginnt diese Datei mit weiteren Zahlen der Karte, so fehlen sie.</translation>
    </message>
    <message>
        <source>the material names it &quot;%1&quot;; the deck has it under its own name</source>
        <translation>das Material nennt sie „%1“; die Solverdatei hat sie unter ihrem eigenen Namen</translation>
    </message>
    <message>
        <source>no card of the deck has anything of the material</source>
        <translation>keine Karte der Solverdatei hat etwas von dem Material</translation>
    </message>
</context>
<context>
    <name>vxUnits::Word</name>
    <message>
        <source>N-methylformamide</source>
        <translation>N-Methylformamid</translation>
    </message>
    <message>
        <source>a pure number</source>
        <translation>eine reine Zahl</translation>
    </message>
    <message>
        <source>acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>aerogel</source>
        <translation>Aerogel</translation>
    </message>
    <message>
        <source>air or a similar gas</source>
        <translation>Luft oder ein ähnliches Gas</translation>
    </message>
    <message>
        <source>alcohol, hydrocarbon or solvent</source>
        <translation>Alkohol, Kohlenwasserstoff oder Lösungsmittel</translation>
    </message>
    <message>
        <source>alkali or alkaline earth metal</source>
        <translation>Alkali- oder Erdalkalimetall</translation>
    </message>
    <message>
        <source>aluminium alloy</source>
        <translation>Aluminiumlegierung</translation>
    </message>
    <message>
        <source>aluminium nitride or beryllia</source>
        <translation>Aluminiumnitrid oder Berylliumoxid</translation>
    </message>
    <message>
        <source>amount of substance</source>
        <translation>Stoffmenge</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>asphalt</source>
        <translation>Asphalt</translation>
    </message>
    <message>
        <source>auxetic foam</source>
        <translation>auxetischer Schaum</translation>
    </message>
    <message>
        <source>bamboo</source>
        <translation>Bambus</translation>
    </message>
    <message>
        <source>bentonite</source>
        <translation>Bentonit</translation>
    </message>
    <message>
        <source>beryllium</source>
        <translation>Beryllium</translation>
    </message>
    <message>
        <source>bismuth or antimony</source>
        <translation>Bismut oder Antimon</translation>
    </message>
    <message>
        <source>blood, milk or suspension</source>
        <translation>Blut, Milch oder Suspension</translation>
    </message>
    <message>
        <source>bone or tooth</source>
        <translation>Knochen oder Zahn</translation>
    </message>
    <message>
        <source>boride or carbide of a heavy metal</source>
        <translation>Borid oder Carbid eines Schwermetalls</translation>
    </message>
    <message>
        <source>boron carbide</source>
        <translation>Borcarbid</translation>
    </message>
    <message>
        <source>boron fibre composite</source>
        <translation>Borfaser-Verbundwerkstoff</translation>
    </message>
    <message>
        <source>boron nitride, pressed</source>
        <translation>Bornitrid, gepresst</translation>
    </message>
    <message>
        <source>calcium copper titanate</source>
        <translation>Calcium-Kupfer-Titanat</translation>
    </message>
    <message>
        <source>carbon fibre</source>
        <translation>Kohlenstofffaser</translation>
    </message>
    <message>
        <source>carbon fibre composite</source>
        <translation>Kohlenstofffaser-Verbundwerkstoff</translation>
    </message>
    <message>
        <source>carbon or graphite</source>
        <translation>Kohlenstoff oder Graphit</translation>
    </message>
    <message>
        <source>cast iron</source>
        <translation>Gusseisen</translation>
    </message>
    <message>
        <source>chromium, manganese or vanadium</source>
        <translation>Chrom, Mangan oder Vanadium</translation>
    </message>
    <message>
        <source>cobalt alloy</source>
        <translation>Kobaltlegierung</translation>
    </message>
    <message>
        <source>compressed gas</source>
        <translation>verdichtetes Gas</translation>
    </message>
    <message>
        <source>compressed hydrogen or helium</source>
        <translation>verdichteter Wasserstoff oder verdichtetes Helium</translation>
    </message>
    <message>
        <source>compressibility</source>
        <translation>Kompressibilität</translation>
    </message>
    <message>
        <source>concrete</source>
        <translation>Beton</translation>
    </message>
    <message>
        <source>copper alloy</source>
        <translation>Kupferlegierung</translation>
    </message>
    <message>
        <source>cork</source>
        <translation>Kork</translation>
    </message>
    <message>
        <source>cryogenic liquid</source>
        <translation>tiefkalte Flüssigkeit</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>diffusion creep</source>
        <translation>Diffusionskriechen</translation>
    </message>
    <message>
        <source>dispersion-strengthened alloy</source>
        <translation>dispersionsverfestigte Legierung</translation>
    </message>
    <message>
        <source>dry gas</source>
        <translation>trockenes Gas</translation>
    </message>
    <message>
        <source>dynamic viscosity</source>
        <translation>dynamische Viskosität</translation>
    </message>
    <message>
        <source>ebonite</source>
        <translation>Hartgummi</translation>
    </message>
    <message>
        <source>elastic solid</source>
        <translation>elastischer Festkörper</translation>
    </message>
    <message>
        <source>electric charge</source>
        <translation>elektrische Ladung</translation>
    </message>
    <message>
        <source>electric current</source>
        <translation>elektrischer Strom</translation>
    </message>
    <message>
        <source>electrical conductance</source>
        <translation>elektrischer Leitwert</translation>
    </message>
    <message>
        <source>electrical conductivity</source>
        <translation>elektrische Leitfähigkeit</translation>
    </message>
    <message>
        <source>electrical resistance</source>
        <translation>elektrischer Widerstand</translation>
    </message>
    <message>
        <source>electrical resistivity</source>
        <translation>spezifischer elektrischer Widerstand</translation>
    </message>
    <message>
        <source>energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>energy per mass</source>
        <translation>Energie je Masse</translation>
    </message>
    <message>
        <source>ferrite</source>
        <translation>Ferrit</translation>
    </message>
    <message>
        <source>ferrofluid</source>
        <translation>Ferrofluid</translation>
    </message>
    <message>
        <source>filled rubber</source>
        <translation>gefüllter Gummi</translation>
    </message>
    <message>
        <source>first yield</source>
        <translation>erstes Fließen</translation>
    </message>
    <message>
        <source>fitted constant</source>
        <translation>angepasste Konstante</translation>
    </message>
    <message>
        <source>fluid</source>
        <translation>Fluid</translation>
    </message>
    <message>
        <source>fluoropolymer</source>
        <translation>Fluorpolymer</translation>
    </message>
    <message>
        <source>force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>force per length</source>
        <translation>Kraft je Länge</translation>
    </message>
    <message>
        <source>force per volume</source>
        <translation>Kraft je Volumen</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>gel</source>
        <translation>Gel</translation>
    </message>
    <message>
        <source>germanium or gallium arsenide</source>
        <translation>Germanium oder Galliumarsenid</translation>
    </message>
    <message>
        <source>glass</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>glass ceramic</source>
        <translation>Glaskeramik</translation>
    </message>
    <message>
        <source>glass or aramid fibre composite</source>
        <translation>Glas- oder Aramidfaser-Verbundwerkstoff</translation>
    </message>
    <message>
        <source>glass transition of a fluid</source>
        <translation>Glasübergang eines Fluids</translation>
    </message>
    <message>
        <source>glass, basalt or ceramic fibre</source>
        <translation>Glas-, Basalt- oder Keramikfaser</translation>
    </message>
    <message>
        <source>graphene aerogel</source>
        <translation>Graphen-Aerogel</translation>
    </message>
    <message>
        <source>halogenated liquid</source>
        <translation>halogenierte Flüssigkeit</translation>
    </message>
    <message>
        <source>hard metal</source>
        <translation>Hartmetall</translation>
    </message>
    <message>
        <source>heat capacity</source>
        <translation>Wärmekapazität</translation>
    </message>
    <message>
        <source>heat transfer coefficient</source>
        <translation>Wärmeübergangskoeffizient</translation>
    </message>
    <message>
        <source>heavy gas</source>
        <translation>schweres Gas</translation>
    </message>
    <message>
        <source>helium</source>
        <translation>Helium</translation>
    </message>
    <message>
        <source>hexane</source>
        <translation>Hexan</translation>
    </message>
    <message>
        <source>honeycomb</source>
        <translation>Wabe</translation>
    </message>
    <message>
        <source>hot gas</source>
        <translation>heißes Gas</translation>
    </message>
    <message>
        <source>hot neon</source>
        <translation>heißes Neon</translation>
    </message>
    <message>
        <source>hydrocarbon vapour</source>
        <translation>Kohlenwasserstoffdampf</translation>
    </message>
    <message>
        <source>hydrogel</source>
        <translation>Hydrogel</translation>
    </message>
    <message>
        <source>hydrogen</source>
        <translation>Wasserstoff</translation>
    </message>
    <message>
        <source>hydrogen or helium</source>
        <translation>Wasserstoff oder Helium</translation>
    </message>
    <message>
        <source>ice</source>
        <translation>Eis</translation>
    </message>
    <message>
        <source>ideal plasticity</source>
        <translation>ideale Plastizität</translation>
    </message>
    <message>
        <source>insulating wool or granulate</source>
        <translation>Dämmwolle oder Dämmschüttung</translation>
    </message>
    <message>
        <source>ionised air</source>
        <translation>ionisierte Luft</translation>
    </message>
    <message>
        <source>kinematic viscosity or diffusivity</source>
        <translation>kinematische Viskosität oder Temperaturleitfähigkeit</translation>
    </message>
    <message>
        <source>lead, tin or solder</source>
        <translation>Blei, Zinn oder Lot</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>light concrete</source>
        <translation>Leichtbeton</translation>
    </message>
    <message>
        <source>light gas</source>
        <translation>leichtes Gas</translation>
    </message>
    <message>
        <source>liquefied gas or refrigerant</source>
        <translation>Flüssiggas oder Kältemittel</translation>
    </message>
    <message>
        <source>liquid aluminium</source>
        <translation>flüssiges Aluminium</translation>
    </message>
    <message>
        <source>liquid helium</source>
        <translation>flüssiges Helium</translation>
    </message>
    <message>
        <source>liquid hydrogen</source>
        <translation>flüssiger Wasserstoff</translation>
    </message>
    <message>
        <source>liquid lead, tin, bismuth or gallium</source>
        <translation>flüssiges Blei, Zinn, Bismut oder Gallium</translation>
    </message>
    <message>
        <source>liquid lithium</source>
        <translation>flüssiges Lithium</translation>
    </message>
    <message>
        <source>liquid sodium</source>
        <translation>flüssiges Natrium</translation>
    </message>
    <message>
        <source>liquid sodium or potassium</source>
        <translation>flüssiges Natrium oder Kalium</translation>
    </message>
    <message>
        <source>magnesium alloy</source>
        <translation>Magnesiumlegierung</translation>
    </message>
    <message>
        <source>mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>mass flow</source>
        <translation>Massenstrom</translation>
    </message>
    <message>
        <source>mass per area</source>
        <translation>Masse je Fläche</translation>
    </message>
    <message>
        <source>mass per length</source>
        <translation>Masse je Länge</translation>
    </message>
    <message>
        <source>melt or bitumen</source>
        <translation>Schmelze oder Bitumen</translation>
    </message>
    <message>
        <source>mercury</source>
        <translation>Quecksilber</translation>
    </message>
    <message>
        <source>metal at first yield</source>
        <translation>Metall beim ersten Fließen</translation>
    </message>
    <message>
        <source>metal foam</source>
        <translation>Metallschaum</translation>
    </message>
    <message>
        <source>metal matrix composite</source>
        <translation>Metallmatrix-Verbundwerkstoff</translation>
    </message>
    <message>
        <source>metallic glass</source>
        <translation>metallisches Glas</translation>
    </message>
    <message>
        <source>molten metal</source>
        <translation>Metallschmelze</translation>
    </message>
    <message>
        <source>molten salt</source>
        <translation>Salzschmelze</translation>
    </message>
    <message>
        <source>mortar, plaster or brick</source>
        <translation>Mörtel, Putz oder Ziegel</translation>
    </message>
    <message>
        <source>nickel alloy</source>
        <translation>Nickellegierung</translation>
    </message>
    <message>
        <source>nitrogen</source>
        <translation>Stickstoff</translation>
    </message>
    <message>
        <source>nuclear oxide</source>
        <translation>Kernbrennstoffoxid</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>Öl</translation>
    </message>
    <message>
        <source>osmium</source>
        <translation>Osmium</translation>
    </message>
    <message>
        <source>oxide ceramic</source>
        <translation>Oxidkeramik</translation>
    </message>
    <message>
        <source>oxygen</source>
        <translation>Sauerstoff</translation>
    </message>
    <message>
        <source>paper, leather or textile</source>
        <translation>Papier, Leder oder Textil</translation>
    </message>
    <message>
        <source>permanent magnet</source>
        <translation>Dauermagnet</translation>
    </message>
    <message>
        <source>piezoceramic or titanate</source>
        <translation>Piezokeramik oder Titanat</translation>
    </message>
    <message>
        <source>pitch</source>
        <translation>Pech</translation>
    </message>
    <message>
        <source>plastic</source>
        <translation>Kunststoff</translation>
    </message>
    <message>
        <source>polymer or natural fibre</source>
        <translation>Polymer- oder Naturfaser</translation>
    </message>
    <message>
        <source>polyolefin</source>
        <translation>Polyolefin</translation>
    </message>
    <message>
        <source>polytetrafluoroethylene</source>
        <translation>Polytetrafluorethylen</translation>
    </message>
    <message>
        <source>porcelain or clay ceramic</source>
        <translation>Porzellan oder Tonkeramik</translation>
    </message>
    <message>
        <source>power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>precious metal</source>
        <translation>Edelmetall</translation>
    </message>
    <message>
        <source>pressure or stress</source>
        <translation>Druck oder Spannung</translation>
    </message>
    <message>
        <source>primary creep</source>
        <translation>primäres Kriechen</translation>
    </message>
    <message>
        <source>pure copper at 4 K</source>
        <translation>reines Kupfer bei 4 K</translation>
    </message>
    <message>
        <source>pure diamond</source>
        <translation>reiner Diamant</translation>
    </message>
    <message>
        <source>radon</source>
        <translation>Radon</translation>
    </message>
    <message>
        <source>railway ballast</source>
        <translation>Gleisschotter</translation>
    </message>
    <message>
        <source>refractory metal</source>
        <translation>Refraktärmetall</translation>
    </message>
    <message>
        <source>reinforced or filled plastic</source>
        <translation>verstärkter oder gefüllter Kunststoff</translation>
    </message>
    <message>
        <source>rigid foam</source>
        <translation>Hartschaum</translation>
    </message>
    <message>
        <source>rock</source>
        <translation>Gestein</translation>
    </message>
    <message>
        <source>rubber</source>
        <translation>Gummi</translation>
    </message>
    <message>
        <source>shape memory alloy</source>
        <translation>Formgedächtnislegierung</translation>
    </message>
    <message>
        <source>silicon</source>
        <translation>Silicium</translation>
    </message>
    <message>
        <source>silicon carbide</source>
        <translation>Siliciumcarbid</translation>
    </message>
    <message>
        <source>silicon nitride</source>
        <translation>Siliciumnitrid</translation>
    </message>
    <message>
        <source>slurry</source>
        <translation>Schlamm</translation>
    </message>
    <message>
        <source>snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>soft foam</source>
        <translation>Weichschaum</translation>
    </message>
    <message>
        <source>soft plastic</source>
        <translation>weicher Kunststoff</translation>
    </message>
    <message>
        <source>soft tissue or gel</source>
        <translation>Weichgewebe oder Gel</translation>
    </message>
    <message>
        <source>soil</source>
        <translation>Boden</translation>
    </message>
    <message>
        <source>specific heat</source>
        <translation>spezifische Wärmekapazität</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>stainless steel</source>
        <translation>nichtrostender Stahl</translation>
    </message>
    <message>
        <source>steel</source>
        <translation>Stahl</translation>
    </message>
    <message>
        <source>stiff polymer</source>
        <translation>steifes Polymer</translation>
    </message>
    <message>
        <source>superconductor</source>
        <translation>Supraleiter</translation>
    </message>
    <message>
        <source>syrup, glycol or glycerol</source>
        <translation>Sirup, Glykol oder Glycerin</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>tendon, skin or cartilage</source>
        <translation>Sehne, Haut oder Knorpel</translation>
    </message>
    <message>
        <source>tertiary creep</source>
        <translation>tertiäres Kriechen</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>Wärmeleitfähigkeit</translation>
    </message>
    <message>
        <source>thermal expansion</source>
        <translation>Wärmeausdehnung</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>tissue</source>
        <translation>Gewebe</translation>
    </message>
    <message>
        <source>titanium alloy</source>
        <translation>Titanlegierung</translation>
    </message>
    <message>
        <source>titanium boride, carbide or nitride</source>
        <translation>Titanborid, -carbid oder -nitrid</translation>
    </message>
    <message>
        <source>torsion at high temperature</source>
        <translation>Torsion bei hoher Temperatur</translation>
    </message>
    <message>
        <source>tungsten hexafluoride</source>
        <translation>Wolframhexafluorid</translation>
    </message>
    <message>
        <source>uranium</source>
        <translation>Uran</translation>
    </message>
    <message>
        <source>uranium or thorium</source>
        <translation>Uran oder Thorium</translation>
    </message>
    <message>
        <source>vacuum insulation</source>
        <translation>Vakuumdämmung</translation>
    </message>
    <message>
        <source>vapour</source>
        <translation>Dampf</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>water or aqueous solution</source>
        <translation>Wasser oder wässrige Lösung</translation>
    </message>
    <message>
        <source>whisker</source>
        <translation>Whisker</translation>
    </message>
    <message>
        <source>wood, across the grain, or board</source>
        <translation>Holz quer zur Faser oder Holzwerkstoffplatte</translation>
    </message>
    <message>
        <source>wood, along the grain</source>
        <translation>Holz in Faserrichtung</translation>
    </message>
    <message>
        <source>xenon</source>
        <translation>Xenon</translation>
    </message>
    <message>
        <source>zinc alloy</source>
        <translation>Zinklegierung</translation>
    </message>
    <message>
        <source>zirconia</source>
        <translation>Zirkoniumdioxid</translation>
    </message>
    <message>
        <source>zirconium or hafnium</source>
        <translation>Zirconium oder Hafnium</translation>
    </message>
    <message>
        <source>Shear modulus</source>
        <translation>Schubmodul</translation>
    </message>
    <message>
        <source>Bulk modulus</source>
        <translation>Kompressionsmodul</translation>
    </message>
    <message>
        <source>Constrained modulus</source>
        <translation>Longitudinalmodul</translation>
    </message>
    <message>
        <source>Wave speed in a bar</source>
        <translation>Wellengeschwindigkeit im Stab</translation>
    </message>
    <message>
        <source>Longitudinal wave speed</source>
        <translation>Longitudinale Wellengeschwindigkeit</translation>
    </message>
    <message>
        <source>Shear wave speed</source>
        <translation>Scherwellengeschwindigkeit</translation>
    </message>
    <message>
        <source>Tangent modulus beyond yield</source>
        <translation>Tangentenmodul nach dem Fließen</translation>
    </message>
    <message>
        <source>Relaxed shear modulus</source>
        <translation>Relaxierter Schubmodul</translation>
    </message>
    <message>
        <source>Initial shear modulus</source>
        <translation>Anfangsschubmodul</translation>
    </message>
    <message>
        <source>Initial bulk modulus</source>
        <translation>Anfangskompressionsmodul</translation>
    </message>
    <message>
        <source>Initial Young&apos;s modulus</source>
        <translation>Anfangselastizitätsmodul</translation>
    </message>
    <message>
        <source>Initial Poisson&apos;s ratio</source>
        <translation>Anfangsquerkontraktionszahl</translation>
    </message>
    <message>
        <source>Heat capacity per volume</source>
        <translation>Wärmekapazität je Volumen</translation>
    </message>
    <message>
        <source>Thermal diffusivity</source>
        <translation>Temperaturleitfähigkeit</translation>
    </message>
    <message>
        <source>Kinematic viscosity</source>
        <translation>Kinematische Viskosität</translation>
    </message>
    <message>
        <source>Prandtl number</source>
        <translation>Prandtl-Zahl</translation>
    </message>
    <message>
        <source>Acoustic bulk modulus</source>
        <translation>Akustischer Kompressionsmodul</translation>
    </message>
    <message>
        <source>Acoustic impedance</source>
        <translation>Schallimpedanz</translation>
    </message>
    <message>
        <source>Electrical resistivity</source>
        <translation>Spezifischer elektrischer Widerstand</translation>
    </message>
    <message>
        <source>mass per volume</source>
        <translation>Masse je Volumen</translation>
    </message>
    <message>
        <source>stress over strain in uniaxial tension at small strain, of an isotropic solid</source>
        <translation>Spannung durch Dehnung im einachsigen Zug bei kleiner Dehnung, für einen isotropen Festkörper</translation>
    </message>
    <message>
        <source>transverse over axial strain in uniaxial tension</source>
        <translation>Querdehnung durch Längsdehnung im einachsigen Zug</translation>
    </message>
    <message>
        <source>shear stress over shear rate, of a Newtonian fluid</source>
        <translation>Schubspannung durch Scherrate, für ein newtonsches Fluid</translation>
    </message>
    <message>
        <source>coefficient mu of the series of the eight-chain model; the initial shear modulus is mu (1 + 3/(5 lm^2) + 99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8)), up to a third more</source>
        <translation>Koeffizient mu der Reihe des Acht-Ketten-Modells; der Anfangsschubmodul ist mu (1 + 3/(5 lm^2) + 99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8)), bis zu einem Drittel mehr</translation>
    </message>
    <message>
        <source>2 over the initial bulk modulus; energy (J - 1)^2 / D1; 0 is exactly incompressible</source>
        <translation>2 durch den Anfangskompressionsmodul; Energie (J - 1)^2 / D1; 0 ist genau inkompressibel</translation>
    </message>
    <message>
        <source>factor of I1 - 3; half the initial shear modulus of a neo-Hookean solid</source>
        <translation>Faktor von I1 - 3; die Hälfte des Anfangsschubmoduls eines neo-hookeschen Festkörpers</translation>
    </message>
    <message>
        <source>factor of I2 - 3; may be negative</source>
        <translation>Faktor von I2 - 3; kann negativ sein</translation>
    </message>
    <message>
        <source>on: W = C10 (I1 - 3) + (J - 1)^2 / D1</source>
        <translation>ein: W = C10 (I1 - 3) + (J - 1)^2 / D1</translation>
    </message>
    <message>
        <source>on: W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1</source>
        <translation>ein: W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1</translation>
    </message>
    <message>
        <source>on: eight-chain model by mu, limiting stretch and D1</source>
        <translation>ein: Acht-Ketten-Modell mit mu, Grenzstreckung und D1</translation>
    </message>
    <message>
        <source>on: linear elasticity by Young&apos;s modulus and Poisson&apos;s ratio; the number is without meaning</source>
        <translation>ein: lineare Elastizität mit Elastizitätsmodul und Querkontraktionszahl; die Zahl hat keine Bedeutung</translation>
    </message>
    <message>
        <source>on: plasticity by yield and hardening type</source>
        <translation>ein: Plastizität nach Fließart und Verfestigungsart</translation>
    </message>
    <message>
        <source>yield criterion</source>
        <translation>Fließbedingung</translation>
    </message>
    <message>
        <source>viscosity of viscoplastic flow: overstress over plastic strain rate; no cohesion, which the catalogue lacks</source>
        <translation>Viskosität des viskoplastischen Fließens: Überspannung durch plastische Dehnrate; keine Kohäsion, die im Katalog fehlt</translation>
    </message>
    <message>
        <source>angle of internal friction; degrees, not radians</source>
        <translation>Winkel der inneren Reibung; Grad, nicht Radiant</translation>
    </message>
    <message>
        <source>plastic modulus: slope of true stress over plastic strain, not over total strain</source>
        <translation>plastischer Modul: Steigung der wahren Spannung über der plastischen Dehnung, nicht über der Gesamtdehnung</translation>
    </message>
    <message>
        <source>hardening law</source>
        <translation>Verfestigungsgesetz</translation>
    </message>
    <message>
        <source>true yield stresses, one for each plastic strain</source>
        <translation>wahre Fließspannungen, eine für jede plastische Dehnung</translation>
    </message>
    <message>
        <source>logarithmic plastic strains, ascending, the first one 0</source>
        <translation>logarithmische plastische Dehnungen, aufsteigend, die erste 0</translation>
    </message>
    <message>
        <source>true stress at the first yield</source>
        <translation>wahre Spannung beim ersten Fließen</translation>
    </message>
    <message>
        <source>on: one term of a Prony series, G(t) / G(0) = 1 - g (1 - exp(-t / tau))</source>
        <translation>ein: ein Glied einer Prony-Reihe, G(t) / G(0) = 1 - g (1 - exp(-t / tau))</translation>
    </message>
    <message>
        <source>g: the share of the instantaneous shear modulus that relaxes; a ratio, not a modulus</source>
        <translation>g: der Anteil des Anfangsschubmoduls, der relaxiert; ein Verhältnis, kein Modul</translation>
    </message>
    <message>
        <source>tau of the Prony term</source>
        <translation>tau des Prony-Glieds</translation>
    </message>
    <message>
        <source>on: creep strain rate = A stress^N time^M</source>
        <translation>ein: Kriechdehnrate = A Spannung^N Zeit^M</translation>
    </message>
    <message>
        <source>factor of the creep law in its rate form; the unit depends on N and M</source>
        <translation>Faktor des Kriechgesetzes in Ratenform; die Einheit hängt von N und M ab</translation>
    </message>
    <message>
        <source>exponent of the stress</source>
        <translation>Exponent der Spannung</translation>
    </message>
    <message>
        <source>exponent of the time in the rate form; 0 is secondary creep</source>
        <translation>Exponent der Zeit in der Ratenform; 0 ist sekundäres Kriechen</translation>
    </message>
    <message>
        <source>lm: the stretch at which the chains are extended fully; a ratio, whatever the unit text says</source>
        <translation>lm: die Streckung, bei der die Ketten ganz ausgezogen sind; ein Verhältnis, was auch immer der Einheitentext sagt</translation>
    </message>
    <message>
        <source>factor of (I1 - 3)(I2 - 3); may be negative</source>
        <translation>Faktor von (I1 - 3)(I2 - 3); kann negativ sein</translation>
    </message>
    <message>
        <source>heat per mass and change of temperature</source>
        <translation>Wärme je Masse und Temperaturänderung</translation>
    </message>
    <message>
        <source>heat flux over gradient of temperature</source>
        <translation>Wärmestromdichte durch Temperaturgradient</translation>
    </message>
    <message>
        <source>current density over electric field; the W of the unit text is an Omega; 0 is a perfect insulator</source>
        <translation>Stromdichte durch elektrische Feldstärke; das W im Einheitentext ist ein Omega; 0 ist ein vollkommener Isolator</translation>
    </message>
    <message>
        <source>permittivity over that of vacuum, static</source>
        <translation>Permittivität durch die des Vakuums, statisch</translation>
    </message>
    <message>
        <source>permeability over that of vacuum, initial</source>
        <translation>Permeabilität durch die des Vakuums, Anfangswert</translation>
    </message>
    <message>
        <source>speed of longitudinal waves</source>
        <translation>Geschwindigkeit der Longitudinalwellen</translation>
    </message>
    <message>
        <source>First Lamé constant</source>
        <translation>Erste Lamé-Konstante</translation>
    </message>
    <message>
        <source>above 0</source>
        <translation>über 0</translation>
    </message>
    <message>
        <source>0 or above</source>
        <translation>0 oder darüber</translation>
    </message>
    <message>
        <source>above 1</source>
        <translation>über 1</translation>
    </message>
    <message>
        <source>above -1</source>
        <translation>über -1</translation>
    </message>
    <message>
        <source>above -1 and below 0.5</source>
        <translation>über -1 und unter 0.5</translation>
    </message>
    <message>
        <source>above 0 and at most 1</source>
        <translation>über 0 und höchstens 1</translation>
    </message>
    <message>
        <source>finite</source>
        <translation>endlich</translation>
    </message>
    <message>
        <source>a logarithmic strain</source>
        <translation>eine logarithmische Dehnung</translation>
    </message>
</context>
<context>
    <name>vxjson::JsonError</name>
    <message>
        <source>&quot;%1&quot; must be a number from 0 to 1</source>
        <translation>„%1“ muss eine Zahl von 0 bis 1 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nested more than 1000 levels deep</source>
        <translation>„%1“ ist tiefer als 1000 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation>„%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8</source>
        <translation>„%1“ ist kein UTF-8</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is beyond the range of a double</source>
        <translation>„%1“ liegt außerhalb des Bereichs einer Gleitkommazahl doppelter Genauigkeit</translation>
    </message>
    <message>
        <source>an escape for half of a surrogate pair, which is not a character</source>
        <translation>eine Escape-Folge für ein halbes Ersatzzeichenpaar, das kein Zeichen ist</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; occurs more than once</source>
        <translation>der Eintrag „%1“ kommt mehrfach vor</translation>
    </message>
    <message>
        <source>there is no value in the text</source>
        <translation>der Text enthält keinen Wert</translation>
    </message>
    <message>
        <source>the escape \u needs four hexadecimal digits</source>
        <translation>die Escape-Folge \u benötigt vier hexadezimale Ziffern</translation>
    </message>
    <message>
        <source>the closing quote of a text is missing</source>
        <translation>das schließende Anführungszeichen eines Textes fehlt</translation>
    </message>
    <message>
        <source>nested more than 1000 levels deep</source>
        <translation>tiefer als 1000 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>a comment that does not end</source>
        <translation>ein Kommentar, der nicht endet</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an escape of JSON</source>
        <translation>„%1“ ist keine Escape-Folge von JSON</translation>
    </message>
    <message>
        <source>a control character in a text, which must be written as an escape</source>
        <translation>ein Steuerzeichen in einem Text, das als Escape-Folge geschrieben werden muss</translation>
    </message>
    <message>
        <source>the text is longer than 2 GiB</source>
        <translation>der Text ist länger als 2 GiB</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist kein UTF-8</translation>
    </message>
    <message>
        <source>a zero byte</source>
        <translation>ein Nullbyte</translation>
    </message>
    <message>
        <source>an object or an array is needed</source>
        <translation>ein Objekt oder ein Feld ist nötig</translation>
    </message>
    <message>
        <source>a value is needed here</source>
        <translation>hier ist ein Wert nötig</translation>
    </message>
    <message>
        <source>the name of a member, in double quotes, is needed here</source>
        <translation>hier ist der Name eines Eintrags in doppelten Anführungszeichen nötig</translation>
    </message>
    <message>
        <source>a colon is needed after the name of a member</source>
        <translation>nach dem Namen eines Eintrags ist ein Doppelpunkt nötig</translation>
    </message>
    <message>
        <source>a comma or ] is needed here</source>
        <translation>hier ist ein Komma oder ] nötig</translation>
    </message>
    <message>
        <source>a comma or } is needed here</source>
        <translation>hier ist ein Komma oder } nötig</translation>
    </message>
    <message>
        <source>there is more text after the end of the document</source>
        <translation>nach dem Ende des Dokuments folgt weiterer Text</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>der Text endet zu früh</translation>
    </message>
    <message>
        <source>a comment, which a file of this kind does not have</source>
        <translation>ein Kommentar, den es in dieser Art von Datei nicht gibt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a JSON value</source>
        <translation>„%1“ ist kein JSON-Wert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>„%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be true or false</source>
        <translation>„%1“ muss true oder false sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number of 32 bits</source>
        <translation>„%1“ muss eine ganze Zahl mit 32 Bit sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be 1; a later program wrote another version</source>
        <translation>„%1“ muss 1 sein; eine andere Version stammt von einem neueren Programm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number from 0</source>
        <translation>„%1“ muss eine ganze Zahl ab 0 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a number</source>
        <translation>„%1“ muss eine Zahl sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a mode</source>
        <translation>„%1“ muss der Name einer Prüfart sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>„%1“ muss ein Objekt sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a finite number</source>
        <translation>„%1“ muss eine endliche Zahl sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a word that this member can have</source>
        <translation>„%1“ ist keines der Wörter, die hier möglich sind</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known member</source>
        <translation>„%1“ ist kein bekanntes Element</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array</source>
        <translation>„%1“ muss eine Liste sein</translation>
    </message>
    <message>
        <source>the text is not an object</source>
        <translation>der Text ist kein Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must have as many ordinates as abscissas</source>
        <translation>„%1“ muss ebenso viele Ordinaten wie Abszissen haben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a measured quantity</source>
        <translation>&quot;%1&quot; muss der Name einer Messgröße sein</translation>
    </message>
</context>
</TS>
