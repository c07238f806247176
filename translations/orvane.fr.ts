<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Orvane</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layer named &quot;%2&quot;.</source>
        <translation>« %1 » ne contient pas de couche nommée « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no data that can be read.</source>
        <translation>« %1 » ne contient aucune donnée lisible.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds nothing to draw.</source>
        <translation>« %1 » ne contient rien à dessiner.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be created because a file of that name exists already.</source>
        <translation>« ^1 » ne peut pas être créé, car un fichier de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not a layer database.</source>
        <translation>« ^1 » n’est pas une base de données de couches.</translation>
    </message>
    <message>
        <source>%1 - Orvane</source>
        <translation>%1 - Orvane</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... et %1 de plus.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;A small desktop map program, the host of the Orvane layer control.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;Un petit programme cartographique de bureau, hôte du contrôle des couches d’Orvane.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was changed without beginning an edit.</source>
        <translation>Une ligne de « ^1 » a été modifiée sans commencer d’édition.</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was sought before an index was chosen.</source>
        <translation>Une ligne de « ^1 » a été recherchée avant le choix d’un index.</translation>
    </message>
    <message>
        <source>A statement on &quot;^1&quot; was given another number of values than it takes.</source>
        <translation>Une instruction sur « ^1 » a reçu un nombre de valeurs incorrect.</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>À &amp;propos d’Orvane</translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation>À propos d’Orvane</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>Add map data from files to the map</source>
        <translation>Ajouter à la carte des données issues de fichiers</translation>
    </message>
    <message>
        <source>An empty value cannot be stored in &quot;^1&quot;.</source>
        <translation>Une valeur vide ne peut pas être enregistrée dans « ^1 ».</translation>
    </message>
    <message>
        <source>Begin a new map file</source>
        <translation>Commencer un nouveau fichier de carte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Supprimer la couche</translation>
    </message>
    <message>
        <source>Delete the layer &quot;%1&quot;?</source>
        <translation>Supprimer la couche « %1 » ?</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>Dessin...</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>End Orvane</source>
        <translation>Quitter Orvane</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Rows of &quot;%1&quot; that belong to something missing from &quot;%2&quot;: %3.</source>
        <translation>Lignes de « %1 » qui se rapportent à un élément absent de « %2 » : %3.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; is missing.</source>
        <translation>Le fichier de données « %1 » est introuvable.</translation>
    </message>
    <message>
        <source>The map file is damaged: %1.</source>
        <translation>Le fichier de carte est endommagé : %1.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>it has no layer named %1</source>
        <translation>aucune couche ne s’y nomme %1</translation>
    </message>
    <message>
        <source>it is no style editor component (&quot;%1&quot; is missing)</source>
        <translation>ce n’est pas un composant d’édition de style (« %1 » est absent)</translation>
    </message>
    <message>
        <source>it made no entry object</source>
        <translation>il n’a pas créé d’objet d’entrée</translation>
    </message>
    <message>
        <source>it speaks version %1 of the contract, this program speaks %2</source>
        <translation>il utilise la version %1 de l’interface, ce programme la version %2</translation>
    </message>
    <message>
        <source>&amp;Layer Control</source>
        <translation>&amp;Contrôle des couches</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Couches</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Map data</source>
        <translation>Données cartographiques</translation>
    </message>
    <message>
        <source>Map data (*.gpkg *.shp *.geojson *.json *.kml *.kmz *.gml *.gpx *.dxf *.tab *.mif *.fgb *.csv *.vrt);;All files (*)</source>
        <translation>Données cartographiques (*.gpkg *.shp *.geojson *.json *.kml *.kmz *.gml *.gpx *.dxf *.tab *.mif *.fgb *.csv *.vrt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Maps (*.orvane)</source>
        <translation>Cartes (*.orvane)</translation>
    </message>
    <message>
        <source>Maps (*.orvane);;All files (*)</source>
        <translation>Cartes (*.orvane);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>New layer</source>
        <translation>Nouvelle couche</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>New map - Orvane</source>
        <translation>Nouvelle carte - Orvane</translation>
    </message>
    <message>
        <source>&amp;New Map...</source>
        <translation>&amp;Nouvelle carte...</translation>
    </message>
    <message>
        <source>No maps yet</source>
        <translation>Pas encore de carte</translation>
    </message>
    <message>
        <source>One statement at a time can be run on &quot;^1&quot;.</source>
        <translation>Une seule instruction à la fois peut être exécutée sur « ^1 ».</translation>
    </message>
    <message>
        <source>Only a query can be opened for reading on &quot;^1&quot;.</source>
        <translation>Seule une requête peut être ouverte en lecture sur « ^1 ».</translation>
    </message>
    <message>
        <source>Open a map file</source>
        <translation>Ouvrir un fichier de carte</translation>
    </message>
    <message>
        <source>Open Data</source>
        <translation>Ouvrir des données</translation>
    </message>
    <message>
        <source>Open &amp;Data...</source>
        <translation>Ouvrir des &amp;données...</translation>
    </message>
    <message>
        <source>Open Map</source>
        <translation>Ouvrir une carte</translation>
    </message>
    <message>
        <source>&amp;Open Map...</source>
        <translation>&amp;Ouvrir une carte...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un &amp;récent</translation>
    </message>
    <message>
        <source>Opening map data</source>
        <translation>Ouverture des données</translation>
    </message>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Reading map data</source>
        <translation>Lecture des données</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; can be sought with &quot;=&quot; only, not with &quot;^2&quot;.</source>
        <translation>Les lignes de « ^1 » ne peuvent être recherchées qu’avec « = », pas avec « ^2 ».</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; were used after they were closed.</source>
        <translation>Des lignes de « ^1 » ont été utilisées après leur fermeture.</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Save Map As</source>
        <translation>Enregistrer la carte sous</translation>
    </message>
    <message>
        <source>&amp;Save Map As...</source>
        <translation>&amp;Enregistrer la carte sous...</translation>
    </message>
    <message>
        <source>Show and edit layers, groups and schemes</source>
        <translation>Afficher et modifier les couches, groupes et schémas</translation>
    </message>
    <message>
        <source>Show less, larger</source>
        <translation>Montrer moins, en plus grand</translation>
    </message>
    <message>
        <source>Show more, smaller</source>
        <translation>Montrer plus, en plus petit</translation>
    </message>
    <message>
        <source>Show the whole map</source>
        <translation>Montrer toute la carte</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Store a copy of the map in another file and go on with it</source>
        <translation>Enregistrer une copie de la carte dans un autre fichier et continuer avec elle</translation>
    </message>
    <message>
        <source>The changes to &quot;^1&quot; were undone after an error; begin them again.</source>
        <translation>Les modifications de « ^1 » ont été annulées après une erreur ; recommencez-les.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; cannot be written.</source>
        <translation>Le fichier de données « %1 » ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>Le dernier schéma de couches ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; cannot be created: ^2</source>
        <translation>La base de données de couches « ^1 » ne peut pas être créée : ^2</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; cannot be opened: ^2</source>
        <translation>La base de données de couches « ^1 » ne peut pas être ouverte : ^2</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; does not exist.</source>
        <translation>La base de données de couches « ^1 » n’existe pas.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; has no table &quot;^2&quot; to open.</source>
        <translation>La base de données de couches « ^1 » n’a pas de table « ^2 ».</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; is damaged. Use a copy of it that was saved earlier.</source>
        <translation>La base de données de couches « ^1 » est endommagée. Utilisez une copie enregistrée précédemment.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; is in use by another program. Try again in a moment.</source>
        <translation>La base de données de couches « ^1 » est utilisée par un autre programme. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; is read-only and cannot be changed.</source>
        <translation>La base de données de couches « ^1 » est en lecture seule et ne peut pas être modifiée.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; refused an operation: ^2</source>
        <translation>La base de données de couches « ^1 » a refusé une opération : ^2</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; was written by a newer version of this program.</source>
        <translation>La base de données de couches « ^1 » a été écrite par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>The row to change is no longer in &quot;^1&quot;.</source>
        <translation>La ligne à modifier n’est plus dans « ^1 ».</translation>
    </message>
    <message>
        <source>The rows of a query on &quot;^1&quot; cannot be sought or edited.</source>
        <translation>Les lignes d’une requête sur « ^1 » ne peuvent être ni recherchées ni modifiées.</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; cannot be sought by the index &quot;^2&quot;.</source>
        <translation>Les lignes lues dans « ^1 » ne peuvent pas être recherchées par l’index « ^2 ».</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; have no column &quot;^2&quot;.</source>
        <translation>Les lignes lues dans « ^1 » n’ont pas de colonne « ^2 ».</translation>
    </message>
    <message>
        <source>The style editor component &quot;%1&quot; cannot be used: %2.</source>
        <translation>Le composant d’édition de style « %1 » ne peut pas être utilisé : %2.</translation>
    </message>
    <message>
        <source>There are no patterns of kind %1.</source>
        <translation>Il n’y a pas de motifs de type %1.</translation>
    </message>
    <message>
        <source>There is a layer scheme named &quot;%1&quot; already.</source>
        <translation>Un schéma nommé « %1 » existe déjà.</translation>
    </message>
    <message>
        <source>There is no current row to read or edit in &quot;^1&quot;.</source>
        <translation>Il n’y a pas de ligne courante à lire ou à modifier dans « ^1 ».</translation>
    </message>
    <message>
        <source>There is no fill pattern %1.</source>
        <translation>Il n’y a pas de motif de remplissage %1.</translation>
    </message>
    <message>
        <source>There is no layer scheme named &quot;%1&quot;.</source>
        <translation>Il n’y a pas de schéma nommé « %1 ».</translation>
    </message>
    <message>
        <source>There is no room left on the disk of the layer database &quot;^1&quot;.</source>
        <translation>Il n’y a plus de place sur le disque de la base de données de couches « ^1 ».</translation>
    </message>
    <message>
        <source>There is no transaction to commit in &quot;^1&quot;.</source>
        <translation>Il n’y a pas de transaction à valider dans « ^1 ».</translation>
    </message>
    <message>
        <source>This map has no file yet. Keep it?</source>
        <translation>Cette carte n’a pas encore de fichier. La conserver ?</translation>
    </message>
    <message>
        <source>This program has no startup database.</source>
        <translation>Ce programme n’a pas de base de données de démarrage.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;ffichage</translation>
    </message>
    <message>
        <source>W</source>
        <translation>O</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>Zoom sur &amp;tout</translation>
    </message>
    <message>
        <source>Write each call between the map and the layer control to FILE.</source>
        <translation>Écrire dans FILE chaque appel entre la carte et le contrôle des couches.</translation>
    </message>
    <message>
        <source>Open the layer control at once.</source>
        <translation>Ouvrir aussitôt le contrôle des couches.</translation>
    </message>
    <message>
        <source>Make a sample map in FILE, and open no window.</source>
        <translation>Créer une carte d’exemple dans FILE sans ouvrir de fenêtre.</translation>
    </message>
    <message>
        <source>Make the sample map of the world data in FOLDER, if it has them.</source>
        <translation>Créer la carte d’exemple à partir des données mondiales de FOLDER, s’il y en a.</translation>
    </message>
    <message>
        <source>Orvane, a small desktop map program.</source>
        <translation>Orvane, un petit programme de cartographie.</translation>
    </message>
    <message>
        <source>The map file to open.</source>
        <translation>Le fichier de carte à ouvrir.</translation>
    </message>
</context>
</TS>
