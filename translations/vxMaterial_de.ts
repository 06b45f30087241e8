<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <source>A request failed: %1</source>
        <translation>Eine Anforderung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>A request failed for a reason that is not known.</source>
        <translation>Eine Anforderung ist aus unbekanntem Grund fehlgeschlagen.</translation>
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
        <source>Nothing can be requested while something is undone or redone; nothing was done.</source>
        <translation>Während etwas rückgängig gemacht oder wiederhergestellt wird, kann nichts angefordert werden; es wurde nichts getan.</translation>
    </message>
</context>
<context>
    <name>Gui::GuiApplication</name>
    <message>
        <source>Something went wrong: %1</source>
        <translation>Etwas ist schiefgegangen: %1</translation>
    </message>
    <message>
        <source>Something went wrong for a reason that is not known.</source>
        <translation>Etwas ist aus unbekanntem Grund schiefgegangen.</translation>
    </message>
</context>
<context>
    <name>Gui::Translator</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>Die Übersetzung %1 kann nicht gelesen werden.</translation>
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
        <source>Closes the window and leaves the material as it was last applied</source>
        <translation>Schließt das Fenster und lässt das Material, wie es zuletzt angewendet wurde</translation>
    </message>
    <message>
        <source>Removes all properties from the table</source>
        <translation>Entfernt alle Eigenschaften aus der Tabelle</translation>
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
        <source>Something went wrong: %1</source>
        <translation>Etwas ist schiefgegangen: %1</translation>
    </message>
    <message>
        <source>the reason is not known</source>
        <translation>der Grund ist nicht bekannt</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; have not been applied.</source>
        <translation>Die Änderungen an „%1“ wurden nicht angewendet.</translation>
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
    <name>StandardCommand</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Materials for finite-element simulation: 26 ready-made materials, 36 quantities, and the documents and cards that the solver reads.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Materialien für die Finite-Elemente-Simulation: 26 fertige Materialien, 36 Größen und die Dokumente und Karten, die der Löser liest.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Make again the change that was taken back</source>
        <translation>Die zurückgenommene Änderung wiederholen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected materials</source>
        <translation>Die ausgewählten Materialien kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Add the copied materials to the project</source>
        <translation>Die kopierten Materialien ins Projekt einfügen</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Add a copy of each selected material</source>
        <translation>Von jedem ausgewählten Material eine Kopie hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>&amp;Unterdrücken</translation>
    </message>
    <message>
        <source>Take the selected materials out of use</source>
        <translation>Die ausgewählten Materialien außer Gebrauch nehmen</translation>
    </message>
    <message>
        <source>U&amp;nsuppress</source>
        <translation>Unterdrückung auf&amp;heben</translation>
    </message>
    <message>
        <source>Take the selected materials into use again</source>
        <translation>Die ausgewählten Materialien wieder in Gebrauch nehmen</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>Give the selected material another label</source>
        <translation>Dem ausgewählten Material eine andere Bezeichnung geben</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select all materials of the project</source>
        <translation>Alle Materialien des Projekts auswählen</translation>
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
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
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
</context>
<context>
    <name>Gui::Command</name>
    <message>
        <source>The command &quot;%1&quot; failed: %2</source>
        <translation>Der Befehl „%1“ ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>the reason is not known</source>
        <translation>der Grund ist nicht bekannt</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
</context>
<context>
    <name>Gui::EditCommands</name>
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
</context>
<context>
    <name>Gui::PictureFactory</name>
    <message>
        <source>The picture %1 is missing.</source>
        <translation>Das Bild %1 fehlt.</translation>
    </message>
</context>
<context>
    <name>Gui::ObjectClipboard</name>
    <message>
        <source>An object cannot be pasted: %1</source>
        <translation>Ein Objekt kann nicht eingefügt werden: %1</translation>
    </message>
</context>
<context>
    <name>Gui::WelcomePage</name>
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
        <source>A material project holds the materials of a model. Begin with a new one.</source>
        <translation>Ein Materialprojekt enthält die Materialien eines Modells. Beginnen Sie mit einem neuen.</translation>
    </message>
    <message>
        <source>Add a material; it begins as structural steel, and the editor offers 25 others and every quantity.</source>
        <translation>Fügen Sie ein Material hinzu; es beginnt als Baustahl, und der Editor bietet 25 andere und alle Größen.</translation>
    </message>
    <message>
        <source>Double-click a material in the project explorer, or select one and choose Edit.</source>
        <translation>Doppelklicken Sie ein Material im Projektbaum, oder wählen Sie eines aus und dann Bearbeiten.</translation>
    </message>
    <message>
        <source>The materials module is missing</source>
        <translation>Das Materialmodul fehlt</translation>
    </message>
    <message>
        <source>The messages tell why it could not be loaded.</source>
        <translation>Die Meldungen sagen, warum es nicht geladen werden konnte.</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Begin with a new one, or open a saved one.</source>
        <translation>Ein Materialprojekt enthält die Materialien eines Modells. Beginnen Sie mit einem neuen, oder öffnen Sie ein gespeichertes.</translation>
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
</context>
<context>
    <name>Gui::ProjectExplorer</name>
    <message>
        <source>Project explorer</source>
        <translation>Projektbaum</translation>
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
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot;; it stays as it was.</source>
        <translation>„%1“ kann nicht „%2“ sein und bleibt, wie es war.</translation>
    </message>
</context>
<context>
    <name>kelta</name>
    <message>
        <source>Changes in open editors have not been applied.</source>
        <translation>Änderungen in offenen Editoren sind nicht übernommen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; and its materials are not kept.</source>
        <translation>Das Projekt „%1“ und seine Materialien bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Programm schließen</translation>
    </message>
    <message>
        <source>Close the program all the same?</source>
        <translation>Das Programm trotzdem schließen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened without the materials module.</source>
        <translation>„%1“ kann ohne das Materialmodul nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>kelta::Batch</name>
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
        <source>nothing in the current project is labelled &quot;%1&quot;</source>
        <translation>nichts im aktuellen Projekt heißt „%1“</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>es gibt kein solches Projekt</translation>
    </message>
    <message>
        <source>one label, and one selected object, are needed</source>
        <translation>eine Bezeichnung und ein ausgewähltes Objekt werden gebraucht</translation>
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
        <source>no argument is taken</source>
        <translation>es wird kein Argument genommen</translation>
    </message>
    <message>
        <source>the name of a library material, and one selected material, are needed</source>
        <translation>der Name eines Bibliotheksmaterials und ein ausgewähltes Material werden gebraucht</translation>
    </message>
    <message>
        <source>the library has no material &quot;%1&quot;</source>
        <translation>die Bibliothek hat kein Material „%1“</translation>
    </message>
    <message>
        <source>a quantity and its value, and one selected material, are needed</source>
        <translation>eine Größe, ihr Wert und ein ausgewähltes Material werden gebraucht</translation>
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
        <source>the materials are not ready</source>
        <translation>die Materialien sind nicht bereit</translation>
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
        <source>the catalogue does not know it; its unit, description and category are lost</source>
        <translation>der Katalog kennt sie nicht; ihre Einheit, Beschreibung und Kategorie sind verloren</translation>
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
    <name>MatGui::ViewFeederMaterialObject</name>
    <message>
        <source>Show material</source>
        <translation>Material anzeigen</translation>
    </message>
</context>
<context>
    <name>FileCommand</name>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Import exchange document</source>
        <translation>Austauschdokument importieren</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a material project from a file</source>
        <translation>Ein Materialprojekt aus einer Datei öffnen</translation>
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
        <source>I&amp;mport exchange document...</source>
        <translation>Austauschdokument i&amp;mportieren...</translation>
    </message>
    <message>
        <source>Add the materials of an exchange document to the project</source>
        <translation>Dem Projekt die Materialien eines Austauschdokuments hinzufügen</translation>
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
        <source>Material project (*.vxmat)</source>
        <translation>Materialprojekt (*.vxmat)</translation>
    </message>
    <message>
        <source>Exchange document (*.json)</source>
        <translation>Austauschdokument (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>kelta::MaterialChange</name>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>„%1“ ändern</translation>
    </message>
</context>
<context>
    <name>kelta::ProjectFiles</name>
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
        <source>What is saved by one of the programs replaces what the other one saved.</source>
        <translation>Was eines der Programme speichert, ersetzt, was das andere gespeichert hat.</translation>
    </message>
    <message>
        <source>&amp;Use all the same</source>
        <translation>&amp;Trotzdem verwenden</translation>
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
        <source>Material project (*.vxmat)</source>
        <translation>Materialprojekt (*.vxmat)</translation>
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
        <source>&quot;%1&quot; has been there since %2, before the project was recovered.</source>
        <translation>„%1“ gibt es seit %2, von vor der Wiederherstellung des Projekts.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program, on %2.</source>
        <translation>„%1“ wurde am %2 von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>What is in the file now is lost when it is replaced.</source>
        <translation>Was jetzt in der Datei steht, geht verloren, wenn sie ersetzt wird.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; in its editor have not been applied.</source>
        <translation>Die Änderungen von „%1“ im Editor wurden nicht angewendet.</translation>
    </message>
    <message>
        <source>Only what has been applied is saved.</source>
        <translation>Nur was angewendet wurde, wird gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>An&amp;wenden</translation>
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
        <source>Materials imported: %1</source>
        <translation>Importierte Materialien: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; is of the class &quot;%2&quot;, which is none of a material</source>
        <translation>Das Objekt „%1“ gehört zur Klasse „%2“, die keine Materialklasse ist</translation>
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
</context>
<context>
    <name>projectfile::ProjectFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>This is no project file: its member &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>Das ist keine Projektdatei: Ihr Eintrag „format“ ist nicht „%1“.</translation>
    </message>
    <message>
        <source>The file was written by a later version of the program, in version %1 of the format; this program reads up to version %2.</source>
        <translation>Die Datei wurde von einer neueren Version des Programms geschrieben, in Version %1 des Formats; dieses Programm liest bis Version %2.</translation>
    </message>
</context>
</TS>
