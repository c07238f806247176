<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Orvane</name>
    <message>
        <source>&quot;%1&quot; cannot be changed: %2.</source>
        <translation>« %1 » ne peut pas être modifié : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>« %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no picture.</source>
        <translation>« %1 » ne contient pas d’image.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no readable data.</source>
        <translation>« %1 » ne contient aucune donnée lisible.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains nothing to draw.</source>
        <translation>« %1 » ne contient rien à dessiner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say where it lies: there is no world file &quot;%2&quot; beside it, and it contains no coordinates of its own, as a GeoTIFF does.</source>
        <translation>« %1 » n’indique pas sa position : il n’y a pas de fichier de calage « %2 » à côté, et il ne contient pas de coordonnées propres comme un GeoTIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no column named &quot;%2&quot;. Its columns are: %3</source>
        <translation>« %1 » n’a pas de colonne nommée « %2 ». Ses colonnes sont : %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layer named &quot;%2&quot;.</source>
        <translation>« %1 » ne contient pas de couche nommée « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in &quot;%2&quot; cannot be read.</source>
        <translation>« %1 » dans « %2 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. It can only be read by a map on that server.</source>
        <translation>« %1 » est une table sur un serveur. Seule une carte de ce serveur peut la lire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. This works only with data in files.</source>
        <translation>« %1 » est une table sur un serveur. Cette opération n’est possible qu’avec des données dans des fichiers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table without columns for coordinates.</source>
        <translation>« %1 » est une table sans colonnes de coordonnées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing from &quot;%2&quot;.</source>
        <translation>« %1 » est absent de « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Type one such as %2.</source>
        <translation>« %1 » n’est pas une échelle. Saisissez-en une comme %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid page size.</source>
        <translation>« %1 » n'est pas une taille de page valide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file</source>
        <translation>« %1 » n'est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not opened because &quot;%2&quot; is not an ordinary file.</source>
        <translation>« %1 » n'a pas été ouvert, car « %2 » n'est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; is not a valid value.</source>
        <translation>« %1 », ligne « %2 » : %3 « %4 » n'est pas une valeur valide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; was replaced by %5.</source>
        <translation>« %1 », ligne « %2 » : %3 « %4 » a été remplacé par %5.</translation>
    </message>
    <message>
        <source>&quot;--columns&quot; needs two names: &quot;X,Y&quot;.</source>
        <translation>« --columns » demande deux noms : « X,Y ».</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not the place of a map on a server, such as postgresql://server/database?schema=Map.</source>
        <translation>« ^1 » n’est pas l’emplacement d’une carte sur un serveur, comme postgresql://serveur/base?schema=Carte.</translation>
    </message>
    <message>
        <source>%1
Unit: %2
Area of use: %3</source>
        <translation>%1
Unité : %2
Zone d’utilisation : %3</translation>
    </message>
    <message>
        <source>%1 (areas)</source>
        <translation>%1 (surfaces)</translation>
    </message>
    <message>
        <source>%1 (in the map's system)</source>
        <translation>%1 (dans le système de la carte)</translation>
    </message>
    <message>
        <source>%1 (left out)</source>
        <translation>%1 (ignorée)</translation>
    </message>
    <message>
        <source>%1 (lines)</source>
        <translation>%1 (lignes)</translation>
    </message>
    <message>
        <source>%1 (longitude, latitude)</source>
        <translation>%1 (longitude, latitude)</translation>
    </message>
    <message>
        <source>%1 (points)</source>
        <translation>%1 (points)</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>%1 to %2 east, %3 to %4 north</source>
        <translation>%1 à %2 est, %3 à %4 nord</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, bands: %3</source>
        <translation>%1 x %2 pixels, bandes : %3</translation>
    </message>
    <message>
        <source>%1. It shows neither labels nor classes: choose another in the layer control.</source>
        <translation>%1. Il ne montre ni étiquettes ni classes : choisissez-en un autre dans le contrôle des couches.</translation>
    </message>
    <message>
        <source>%1: features %2, extent %3</source>
        <translation>%1 : entités %2, étendue %3</translation>
    </message>
    <message>
        <source>%1: may edit</source>
        <translation>%1 : peut modifier</translation>
    </message>
    <message>
        <source>%1: may read</source>
        <translation>%1 : peut lire</translation>
    </message>
    <message>
        <source>%1: raster of %2 x %3 pixels, extent %4</source>
        <translation>%1 : raster de %2 x %3 pixels, étendue %4</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Ajouter...</translation>
    </message>
    <message>
        <source>&amp;Apply When the Map Is Opened</source>
        <translation>&amp;Appliquer à l’ouverture de la carte</translation>
    </message>
    <message>
        <source>&amp;As the Source Says</source>
        <translation>Comme l’indique la &amp;source</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>&amp;Changer...</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Couleurs :</translation>
    </message>
    <message>
        <source>&amp;Coordinate System of the Map...</source>
        <translation>Système de &amp;coordonnées de la carte...</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>&amp;Give</source>
        <translation>&amp;Accorder</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;Holds...</source>
        <translation>Conten&amp;u...</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>M&amp;onter</translation>
    </message>
    <message>
        <source>&amp;Name of the map:</source>
        <translation>&amp;Nom de la carte :</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nouveau...</translation>
    </message>
    <message>
        <source>&quot;--to MAP&quot; is missing.</source>
        <translation>« --to MAP » manque.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be created because a file of that name exists already.</source>
        <translation>« ^1 » ne peut pas être créé, car un fichier de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be stored: ^2</source>
        <translation>« ^1 » ne peut pas être enregistré : ^2</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not a map file.</source>
        <translation>« ^1 » n’est pas un fichier de carte.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is open in another window or program and cannot be replaced. Close it there, or choose another name.</source>
        <translation>« ^1 » est ouvert dans une autre fenêtre ou un autre programme et ne peut pas être remplacé. Fermez-le là-bas ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>&quot;orvane %1--help&quot; lists the options.</source>
        <translation>« orvane %1--help » affiche les options.</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (dans %2 couches)</translation>
    </message>
    <message>
        <source>%1 - Orvane</source>
        <translation>%1 - Orvane</translation>
    </message>
    <message>
        <source>%1 is here but hidden at this scale.</source>
        <translation>%1 est ici mais masqué à cette échelle.</translation>
    </message>
    <message>
        <source>%1 is here but hidden by its quick mode.</source>
        <translation>%1 est ici mais masqué par son mode rapide.</translation>
    </message>
    <message>
        <source>%1 is here but locked.</source>
        <translation>%1 est ici mais verrouillé.</translation>
    </message>
    <message>
        <source>%1 is here but not enquirable.</source>
        <translation>%1 est ici mais non interrogeable.</translation>
    </message>
    <message>
        <source>%1 is here but not hitable.</source>
        <translation>%1 est ici mais non cliquable.</translation>
    </message>
    <message>
        <source>%1 is here but not selectable.</source>
        <translation>%1 est ici mais non sélectionnable.</translation>
    </message>
    <message>
        <source>%1 is here but not visible.</source>
        <translation>%1 est ici mais non visible.</translation>
    </message>
    <message>
        <source>%1 is here but snapping to it is off.</source>
        <translation>%1 est ici mais son accrochage est désactivé.</translation>
    </message>
    <message>
        <source>%1 layers</source>
        <translation>%1 couches</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 autres</translation>
    </message>
    <message>
        <source>%1 Steps</source>
        <translation>%1 étapes</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, not for symbols</source>
        <translation>%1, pas pour les symboles</translation>
    </message>
    <message>
        <source>%1: your value is %2, stored is %3</source>
        <translation>%1 : votre valeur est %2, la valeur enregistrée est %3</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° E</translation>
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
        <translation>%1° O</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>À &amp;propos d’Orvane</translation>
    </message>
    <message>
        <source>&amp;Attribute:</source>
        <translation>&amp;Attribut :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pa&amp;rcourir...</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>&amp;Copier la valeur</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Delete Theme</source>
        <translation>&amp;Supprimer un thème</translation>
    </message>
    <message>
        <source>&amp;Division:</source>
        <translation>&amp;Répartition :</translation>
    </message>
    <message>
        <source>&amp;Dock Layer Control</source>
        <translation>&amp;Ancrer le contrôle des couches</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Export Map...</source>
        <translation>&amp;Exporter la carte...</translation>
    </message>
    <message>
        <source>&amp;Export Scheme...</source>
        <translation>E&amp;xporter le schéma...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Find Missing Data...</source>
        <translation>Recherc&amp;her les données manquantes...</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;De :</translation>
    </message>
    <message>
        <source>&amp;Geometry:</source>
        <translation>&amp;Géométrie :</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Highlight Under Pointer</source>
        <translation>Su&amp;rligner sous le pointeur</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>&amp;Identifier</translation>
    </message>
    <message>
        <source>&amp;Import Scheme...</source>
        <translation>&amp;Importer un schéma...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>&amp;Keep Layers</source>
        <translation>&amp;Garder les couches</translation>
    </message>
    <message>
        <source>&amp;Keep the Stored Ones</source>
        <translation>&amp;Garder les valeurs enregistrées</translation>
    </message>
    <message>
        <source>&amp;Layer Control</source>
        <translation>&amp;Contrôle des couches</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>Couc&amp;he :</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Couches</translation>
    </message>
    <message>
        <source>&amp;Legend of what is shown</source>
        <translation>&amp;Légende de ce qui est montré</translation>
    </message>
    <message>
        <source>&amp;Make a layer scheme of each of these map themes:</source>
        <translation>&amp;Créer un schéma de couches à partir de chacun de ces thèmes de carte :</translation>
    </message>
    <message>
        <source>&amp;Move Feature</source>
        <translation>Déplacer un &amp;objet</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;New Map...</source>
        <translation>&amp;Nouvelle carte...</translation>
    </message>
    <message>
        <source>&amp;New Theme from Visible Layers...</source>
        <translation>&amp;Nouveau thème à partir des couches visibles...</translation>
    </message>
    <message>
        <source>&amp;Next Row</source>
        <translation>Ligne &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Next View</source>
        <translation>Vue suiva&amp;nte</translation>
    </message>
    <message>
        <source>&amp;Nowhere; leave this table out</source>
        <translation>&amp;Nulle part ; ignorer cette table</translation>
    </message>
    <message>
        <source>&amp;Number of classes:</source>
        <translation>&amp;Nombre de classes :</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Open Map...</source>
        <translation>&amp;Ouvrir une carte...</translation>
    </message>
    <message>
        <source>&amp;Pan and Zoom</source>
        <translation>&amp;Déplacer et zoomer</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>&amp;Preview...</source>
        <translation>A&amp;perçu...</translation>
    </message>
    <message>
        <source>&amp;Previous Row</source>
        <translation>Ligne &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Previous View</source>
        <translation>Vue &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Remove Map...</source>
        <translation>&amp;Supprimer la carte...</translation>
    </message>
    <message>
        <source>&amp;Rename Theme</source>
        <translation>&amp;Renommer un thème</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renommer...</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution :</translation>
    </message>
    <message>
        <source>&amp;Reverse the colours</source>
        <translation>&amp;Inverser les couleurs</translation>
    </message>
    <message>
        <source>&amp;Revert to Saved Scheme</source>
        <translation>&amp;Revenir au schéma enregistré</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save Map As...</source>
        <translation>Enregistrer la carte so&amp;us...</translation>
    </message>
    <message>
        <source>&amp;Save Scheme</source>
        <translation>&amp;Enregistrer le schéma</translation>
    </message>
    <message>
        <source>&amp;Save Scheme &quot;%1&quot;</source>
        <translation>&amp;Enregistrer le schéma « %1 »</translation>
    </message>
    <message>
        <source>&amp;Schemes</source>
        <translation>Sché&amp;mas</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Sélectionner</translation>
    </message>
    <message>
        <source>&amp;Service, or address of the database:</source>
        <translation>&amp;Service ou adresse de la base de données :</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Ta&amp;ille :</translation>
    </message>
    <message>
        <source>&amp;Store My Values</source>
        <translation>&amp;Enregistrer mes valeurs</translation>
    </message>
    <message>
        <source>&amp;System:</source>
        <translation>&amp;Système :</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Thèmes</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre :</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Use It Now</source>
        <translation>&amp;Utiliser maintenant</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;ffichage</translation>
    </message>
    <message>
        <source>&amp;X, east or longitude:</source>
        <translation>&amp;X, est ou longitude :</translation>
    </message>
    <message>
        <source>&amp;Y, north or latitude:</source>
        <translation>&amp;Y, nord ou latitude :</translation>
    </message>
    <message>
        <source>&amp;Zoom by Rectangle</source>
        <translation>&amp;Zoom par rectangle</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selection</source>
        <translation>&amp;Zoomer sur la sélection</translation>
    </message>
    <message>
        <source>&amp;in</source>
        <translation>&amp;dans</translation>
    </message>
    <message>
        <source>--%1 needs a number from %2 to %3.</source>
        <translation>--%1 demande un nombre de %2 à %3.</translation>
    </message>
    <message>
        <source>--%1: &quot;%2&quot; is not a known coordinate system.</source>
        <translation>--%1 : « %2 » n’est pas un système de coordonnées connu.</translation>
    </message>
    <message>
        <source>A code such as EPSG:25832, WKT or a PROJ string</source>
        <translation>Un code tel que EPSG:25832, du WKT ou une chaîne PROJ</translation>
    </message>
    <message>
        <source>A raster has no attributes, and so no labels and classes.</source>
        <translation>Un raster n’a pas d’attributs, donc ni étiquettes ni classes.</translation>
    </message>
    <message>
        <source>A raster has no attributes.</source>
        <translation>Un raster n’a pas d’attributs.</translation>
    </message>
    <message>
        <source>A service is an entry of PostgreSQL&apos;s file pg_service.conf, which your administrator may have set up. Leave the password out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>Un service est une entrée du fichier pg_service.conf de PostgreSQL, que votre administrateur a peut-être préparé. N’indiquez pas le mot de passe : il a sa place dans le fichier de mots de passe de PostgreSQL, ou il vous sera demandé.</translation>
    </message>
    <message>
        <source>A value cannot be stored in &quot;^1&quot;: ^2</source>
        <translation>Une valeur ne peut pas être enregistrée dans « ^1 » : ^2</translation>
    </message>
    <message>
        <source>Add PostGIS tables of the map&apos;s server to the map</source>
        <translation>Ajouter à la carte des tables PostGIS de son serveur</translation>
    </message>
    <message>
        <source>Add Server</source>
        <translation>Ajouter un serveur</translation>
    </message>
    <message>
        <source>Add Ta&amp;bles from Server...</source>
        <translation>Ajouter des ta&amp;bles du serveur...</translation>
    </message>
    <message>
        <source>Add Tables from Server</source>
        <translation>Ajouter des tables du serveur</translation>
    </message>
    <message>
        <source>Add aerial photographs, scanned maps or elevation grids to the map</source>
        <translation>Ajouter à la carte des photos aériennes, des cartes numérisées ou des grilles d’altitude</translation>
    </message>
    <message>
        <source>Add data to a map file: a group for each file, a layer for each of its layers.
Exit code: 0 all was added, 1 something was not or has no known place, 2 the command was not understood.</source>
        <translation>Ajouter des données à un fichier de carte : un groupe par fichier, une couche par couche du fichier.
Code de sortie : 0 tout a été ajouté, 1 quelque chose ne l'a pas été ou n'a pas de position connue, 2 la commande n'a pas été comprise.</translation>
    </message>
    <message>
        <source>Add the server of your team. Your administrator knows its name.</source>
        <translation>Ajoutez le serveur de votre équipe. Votre administrateur en connaît le nom.</translation>
    </message>
    <message>
        <source>All attributes</source>
        <translation>Tous les attributs</translation>
    </message>
    <message>
        <source>Also opened by: %1</source>
        <translation>Aussi ouverte par : %1</translation>
    </message>
    <message>
        <source>Also opened by: %1 and %2 more</source>
        <translation>Aussi ouverte par : %1 et %2 autres</translation>
    </message>
    <message>
        <source>Apply No Scheme at Opening</source>
        <translation>N’appliquer aucun schéma à l’ouverture</translation>
    </message>
    <message>
        <source>Apply Scheme &quot;%1&quot; at Opening</source>
        <translation>Appliquer le schéma « %1 » à l’ouverture</translation>
    </message>
    <message>
        <source>Area of use</source>
        <translation>Zone d’utilisation</translation>
    </message>
    <message>
        <source>As this &amp;layer:</source>
        <translation>Comme cette co&amp;uche :</translation>
    </message>
    <message>
        <source>Asking the server...</source>
        <translation>Interrogation du serveur...</translation>
    </message>
    <message>
        <source>At opening</source>
        <translation>À l’ouverture</translation>
    </message>
    <message>
        <source>Attribute &amp;Table...</source>
        <translation>&amp;Table attributaire...</translation>
    </message>
    <message>
        <source>Attribute Table</source>
        <translation>Table attributaire</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Attributs de %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Bande %1</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Blue to red, pale in the middle</source>
        <translation>Du bleu au rouge, pâle au milieu</translation>
    </message>
    <message>
        <source>Blues</source>
        <translation>Bleus</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Centre Here</source>
        <translation>Centrer ici</translation>
    </message>
    <message>
        <source>Change Coordinate System of Data</source>
        <translation>Changer le système de coordonnées de données</translation>
    </message>
    <message>
        <source>Change Coordinate System of the Map</source>
        <translation>Changer le système de coordonnées de la carte</translation>
    </message>
    <message>
        <source>Change What Scheme &quot;%1&quot; Holds</source>
        <translation>Modification du contenu du schéma « %1 »</translation>
    </message>
    <message>
        <source>Choose a layer in the layer control first.</source>
        <translation>Choisissez d’abord une couche dans le contrôle des couches.</translation>
    </message>
    <message>
        <source>Choose the colour under all layers</source>
        <translation>Choisir la couleur sous toutes les couches</translation>
    </message>
    <message>
        <source>Choose the columns with the coordinates of the tables in the map</source>
        <translation>Choisir les colonnes de coordonnées des tables de la carte</translation>
    </message>
    <message>
        <source>Choose the columns, please.</source>
        <translation>Veuillez choisir les colonnes.</translation>
    </message>
    <message>
        <source>Choose the coordinate system that the map is shown in</source>
        <translation>Choisir le système de coordonnées dans lequel la carte est affichée</translation>
    </message>
    <message>
        <source>Choose where the files with the data of the map are on this computer</source>
        <translation>Indiquer où se trouvent, sur cet ordinateur, les fichiers de données de la carte</translation>
    </message>
    <message>
        <source>Choose who may read and edit a map on a server; without options, list them. A role is a user of the server or a group of users; &quot;public&quot; is everybody. Only the owner of the map can change this.
Exit code: 0 done, 1 not done, 2 the command was not understood.</source>
        <translation>Choisir qui peut lire et modifier une carte sur un serveur ; sans option, en afficher la liste. Un rôle est un utilisateur du serveur ou un groupe d’utilisateurs ; « public » désigne tout le monde. Seul le propriétaire de la carte peut changer cela.
Code de retour : 0 effectué, 1 non effectué, 2 commande non comprise.</translation>
    </message>
    <message>
        <source>Choose who may read and edit the map on its server</source>
        <translation>Choisir qui peut lire et modifier la carte sur son serveur</translation>
    </message>
    <message>
        <source>Click a feature to see its attributes, or a raster to see its values.</source>
        <translation>Cliquez sur un objet pour voir ses attributs, ou sur un raster pour voir ses valeurs.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>Connexion au serveur</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Coordinate System of the Data</source>
        <translation>Système de coordonnées des données</translation>
    </message>
    <message>
        <source>Coordinate System of the Layer</source>
        <translation>Système de coordonnées de la couche</translation>
    </message>
    <message>
        <source>Coordinate System of the Map</source>
        <translation>Système de coordonnées de la carte</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Système de coordonnées</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1</source>
        <translation>Système de coordonnées de la carte : %1</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1
Unit: %2
Area of use: %3</source>
        <translation>Système de coordonnées de la carte : %1
Unité : %2
Zone d’utilisation : %3</translation>
    </message>
    <message>
        <source>Coordinate system:</source>
        <translation>Système de coordonnées :</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Systèmes de coordonnées</translation>
    </message>
    <message>
        <source>Coordinates of &quot;%1&quot; are in these columns: %2</source>
        <translation>Les coordonnées de « %1 » sont dans ces colonnes : %2</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>Copier la &amp;valeur</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <translation>Copier les coordonnées</translation>
    </message>
    <message>
        <source>Copying the rows</source>
        <translation>Copie des lignes</translation>
    </message>
    <message>
        <source>Delete Theme &quot;%1&quot;</source>
        <translation>Supprimer le thème « %1 »</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it. A click zooms in, with Ctrl out.</source>
        <translation>Tracez un rectangle pour zoomer dessus. Un clic zoome en avant, avec Ctrl en arrière.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>Tout le monde</translation>
    </message>
    <message>
        <source>Extent:</source>
        <translation>Étendue :</translation>
    </message>
    <message>
        <source>Features found: %1, rasters: %2</source>
        <translation>Objets trouvés : %1, rasters : %2</translation>
    </message>
    <message>
        <source>Features:</source>
        <translation>Entités :</translation>
    </message>
    <message>
        <source>File or source:</source>
        <translation>Fichier ou source :</translation>
    </message>
    <message>
        <source>Fill colours of the layer</source>
        <translation>Couleurs de remplissage de la couche</translation>
    </message>
    <message>
        <source>First rows</source>
        <translation>Premières lignes</translation>
    </message>
    <message>
        <source>Folder of S&amp;hared Data...</source>
        <translation>Dossier des données &amp;partagées...</translation>
    </message>
    <message>
        <source>Folder of Shared Data</source>
        <translation>Dossier des données partagées</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>Ou&amp;blier</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>From dark to light, for a map with a dark background</source>
        <translation>Du foncé au clair, pour une carte à fond sombre</translation>
    </message>
    <message>
        <source>Geometry:</source>
        <translation>Géométrie :</translation>
    </message>
    <message>
        <source>Greens</source>
        <translation>Verts</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>In &amp;one column with geometries as text (WKT)</source>
        <translation>Dans &amp;une colonne de géométries sous forme de texte (WKT)</translation>
    </message>
    <message>
        <source>In &amp;two columns with numbers</source>
        <translation>Dans &amp;deux colonnes de nombres</translation>
    </message>
    <message>
        <source>It is used until Orvane ends, and stored nowhere.</source>
        <translation>Il sert jusqu’à la fermeture d’Orvane et n’est enregistré nulle part.</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source cannot be read.</source>
        <translation>Il a été supposé ou choisi ; la source ne peut pas être lue.</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source names none.</source>
        <translation>Il a été supposé ou choisi ; la source n’en indique aucun.</translation>
    </message>
    <message>
        <source>It was chosen; the source says %1.</source>
        <translation>Il a été choisi ; la source indique %1.</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>Layer &amp;Properties...</source>
        <translation>&amp;Propriétés de la couche...</translation>
    </message>
    <message>
        <source>Layer Properties</source>
        <translation>Propriétés de la couche</translation>
    </message>
    <message>
        <source>Layer Properties...</source>
        <translation>Propriétés de la couche...</translation>
    </message>
    <message>
        <source>Layer Rendering...</source>
        <translation>Rendu de la couche...</translation>
    </message>
    <message>
        <source>Layer in it:</source>
        <translation>Couche dedans :</translation>
    </message>
    <message>
        <source>Layers &gt; Layer Properties... changes this.</source>
        <translation>Couches &gt; Propriétés de la couche... permet de changer cela.</translation>
    </message>
    <message>
        <source>Layers whose data were found: %1 of %2</source>
        <translation>Couches dont les données ont été trouvées : %1 sur %2</translation>
    </message>
    <message>
        <source>Let ROLE read and change the map.</source>
        <translation>Permettre à ROLE de lire et de modifier la carte.</translation>
    </message>
    <message>
        <source>Let ROLE read the map.</source>
        <translation>Permettre à ROLE de lire la carte.</translation>
    </message>
    <message>
        <source>List the layers of a map: the number of features, and the extent in the map&apos;s coordinate system as west, south, east and north.
Exit code: 0 all was read, 1 something was not, 2 the command was not understood.</source>
        <translation>Énumérer les couches d’une carte : le nombre d’entités, et l’étendue dans le système de coordonnées de la carte : ouest, sud, est et nord.
Code de sortie : 0 tout a été lu, 1 quelque chose ne l’a pas été, 2 la commande n’a pas été comprise.</translation>
    </message>
    <message>
        <source>List the options.</source>
        <translation>Énumérer les options.</translation>
    </message>
    <message>
        <source>Lists of the layers that you need for one task, without settings</source>
        <translation>Listes des couches utiles à une tâche, sans réglages</translation>
    </message>
    <message>
        <source>Looking for tables</source>
        <translation>Recherche des tables</translation>
    </message>
    <message>
        <source>Map &amp;Background...</source>
        <translation>Couleur de &amp;fond de la carte...</translation>
    </message>
    <message>
        <source>Map Background</source>
        <translation>Couleur de fond de la carte</translation>
    </message>
    <message>
        <source>Map data (%1);;All files (*)</source>
        <translation>Données cartographiques (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Maps on the server</source>
        <translation>Cartes du serveur</translation>
    </message>
    <message>
        <source>Named sets of the settings of all layers</source>
        <translation>Jeux nommés des réglages de toutes les couches</translation>
    </message>
    <message>
        <source>New Theme &quot;%1&quot;</source>
        <translation>Nouveau thème « %1 »</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>Aucun système de coordonnées</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. The coordinates are taken as those of the map.</source>
        <translation>%1 : aucun système de coordonnées n’est indiqué, et aucun ne semble convenir. Les coordonnées sont prises pour celles de la carte.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. Which one is it? With Cancel, the data are added as if they had the coordinates of the map.</source>
        <translation>%1 : aucun système de coordonnées n’est indiqué, et aucun ne semble convenir. Lequel est-ce ? Avec Annuler, les données sont ajoutées comme si elles avaient les coordonnées de la carte.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. It is taken as the chosen one, %2.</source>
        <translation>%1 : aucun système de coordonnées n’est indiqué. Le système choisi est utilisé : %2.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit degrees, so it is taken as %2.</source>
        <translation>%1 : aucun système de coordonnées n’est indiqué. Les coordonnées correspondent à des degrés ; %2 est donc supposé.</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit the map, so it is taken as %2.</source>
        <translation>%1 : aucun système de coordonnées n’est indiqué. Les coordonnées correspondent à la carte ; %2 est donc supposé.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Pas de données</translation>
    </message>
    <message>
        <source>Not everything in these layers has a place in %1: %2. It is shown again in a system that has one.</source>
        <translation>Tout n’a pas sa place dans %1 pour ces couches : %2. Le reste réapparaît dans un système qui le permet.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Only maps on a server can be shared.</source>
        <translation>Seules les cartes d’un serveur peuvent être partagées.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Open Map from Ser&amp;ver...</source>
        <translation>Ouvrir une carte du ser&amp;veur...</translation>
    </message>
    <message>
        <source>Open Map from Server</source>
        <translation>Ouvrir une carte du serveur</translation>
    </message>
    <message>
        <source>Open Ras&amp;ter...</source>
        <translation>Ouvrir un ras&amp;ter...</translation>
    </message>
    <message>
        <source>Open Raster</source>
        <translation>Ouvrir un raster</translation>
    </message>
    <message>
        <source>Open a map that a team shares on a PostgreSQL server</source>
        <translation>Ouvrir une carte qu’une équipe partage sur un serveur PostgreSQL</translation>
    </message>
    <message>
        <source>Open by</source>
        <translation>Ouverte par</translation>
    </message>
    <message>
        <source>Oranges</source>
        <translation>Orangés</translation>
    </message>
    <message>
        <source>Orvane Guide</source>
        <translation>Guide d’Orvane</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propriétaire</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Password of &quot;%1&quot; on the server &quot;%2&quot;:</source>
        <translation>Mot de passe de « %1 » sur le serveur « %2 » :</translation>
    </message>
    <message>
        <source>Pixel size:</source>
        <translation>Taille de pixel :</translation>
    </message>
    <message>
        <source>Purples</source>
        <translation>Violets</translation>
    </message>
    <message>
        <source>R&amp;ights...</source>
        <translation>Droit&amp;s...</translation>
    </message>
    <message>
        <source>R&amp;ole:</source>
        <translation>Rô&amp;le :</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Raster:</source>
        <translation>Raster :</translation>
    </message>
    <message>
        <source>Rasters (%1);;All files (*)</source>
        <translation>Rasters (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Rasters found: %1</source>
        <translation>Rasters trouvés : %1</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Act&amp;ualiser</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Read about the window or the tool that is in use</source>
        <translation>Lire ce qui concerne la fenêtre ou l’outil en cours d’utilisation</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Reading the rows...</source>
        <translation>Lecture des lignes...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove Map</source>
        <translation>Supprimer la carte</translation>
    </message>
    <message>
        <source>Remove the map &quot;%1&quot; from the server? All its layers, groups and schemes are lost, for everybody. This cannot be undone.</source>
        <translation>Supprimer la carte « %1 » du serveur ? Toutes ses couches, tous ses groupes et tous ses schémas seront perdus, pour tout le monde. Cette opération ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>Rename Theme</source>
        <translation>Renommer un thème</translation>
    </message>
    <message>
        <source>Rename Theme &quot;%1&quot;</source>
        <translation>Renommer le thème « %1 »</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Rights on &quot;%1&quot;</source>
        <translation>Droits sur « %1 »</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Roles are the users of the server, and groups of them. Those who may read see everything in the map; those who may edit can change it, too.</source>
        <translation>Les rôles sont les utilisateurs du serveur et leurs groupes. Qui peut lire voit tout le contenu de la carte ; qui peut modifier peut aussi la changer.</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Lignes : %1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>Lignes : %1 sur %2</translation>
    </message>
    <message>
        <source>Save &amp;Map on Server...</source>
        <translation>Enregistrer la &amp;carte sur un serveur...</translation>
    </message>
    <message>
        <source>Save Map on Server</source>
        <translation>Enregistrer la carte sur un serveur</translation>
    </message>
    <message>
        <source>Saving the map</source>
        <translation>Enregistrement de la carte</translation>
    </message>
    <message>
        <source>Scale of the map</source>
        <translation>Échelle de la carte</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>Search by name, code or area</source>
        <translation>Rechercher par nom, code ou zone</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche...</translation>
    </message>
    <message>
        <source>Select features on the map first.</source>
        <translation>Sélectionnez d’abord des objets sur la carte.</translation>
    </message>
    <message>
        <source>Select fewer layers: each has a window of its own.</source>
        <translation>Sélectionnez moins de couches : chacune a sa propre fenêtre.</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Sélectionnées : %1</translation>
    </message>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;veur :</translation>
    </message>
    <message>
        <source>Show &amp;Selected Only</source>
        <translation>Afficher la &amp;sélection seule</translation>
    </message>
    <message>
        <source>Show all features of the layers that are chosen in the layer control</source>
        <translation>Montrer tous les objets des couches choisies dans le contrôle des couches</translation>
    </message>
    <message>
        <source>Show all selected features</source>
        <translation>Montrer tous les objets sélectionnés</translation>
    </message>
    <message>
        <source>Show only the rows that are selected, here or on the map</source>
        <translation>Afficher seulement les lignes sélectionnées ici ou sur la carte</translation>
    </message>
    <message>
        <source>Show the attributes of all features of a layer</source>
        <translation>Afficher les attributs de tous les objets d’une couche</translation>
    </message>
    <message>
        <source>Show the data of a layer, and choose their coordinate system</source>
        <translation>Afficher les données d’une couche et choisir leur système de coordonnées</translation>
    </message>
    <message>
        <source>Show the part of the map that was shown before</source>
        <translation>Montrer la partie de la carte qui était affichée avant</translation>
    </message>
    <message>
        <source>Show the selected features on the map</source>
        <translation>Afficher les objets sélectionnés sur la carte</translation>
    </message>
    <message>
        <source>Show the view from which you went back</source>
        <translation>Montrer la vue d’où l’on est revenu</translation>
    </message>
    <message>
        <source>Shows only the rows that contain all these words; F3 goes to the next of them</source>
        <translation>N’affiche que les lignes qui contiennent tous ces mots ; F3 passe à la suivante</translation>
    </message>
    <message>
        <source>Some data have no known place. --crs tells their coordinate system.</source>
        <translation>La position de certaines données n’est pas connue. --crs indique leur système de coordonnées.</translation>
    </message>
    <message>
        <source>Some of the rows below have no numbers there. They are left out.</source>
        <translation>Certaines des lignes n'y ont pas de nombres. Elles sont ignorées.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri...</translation>
    </message>
    <message>
        <source>Store the map on a PostgreSQL server and continue with it there</source>
        <translation>Enregistrer la carte sur un serveur PostgreSQL et y poursuivre le travail</translation>
    </message>
    <message>
        <source>Table &amp;Columns...</source>
        <translation>Co&amp;lonnes des tables...</translation>
    </message>
    <message>
        <source>Table Columns</source>
        <translation>Colonnes des tables</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message>
        <source>Tables on the server</source>
        <translation>Tables du serveur</translation>
    </message>
    <message>
        <source>Tables with geometries</source>
        <translation>Tables avec géométries</translation>
    </message>
    <message>
        <source>Take all rights on the map back from ROLE.</source>
        <translation>Retirer à ROLE tous ses droits sur la carte.</translation>
    </message>
    <message>
        <source>Take the server off this list; its maps stay</source>
        <translation>Retirer le serveur de cette liste ; ses cartes restent</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; can be neither replaced nor removed, because more would be lost: ^2. Move that away first.</source>
        <translation>La carte « ^1 » ne peut être ni remplacée ni supprimée, car d’autres éléments seraient perdus : ^2. Déplacez-les d’abord.</translation>
    </message>
    <message>
        <source>The server has not answered yet. If you close this now, you will not learn whether it was done. Close it?</source>
        <translation>Le serveur n’a pas encore répondu. Si vous fermez maintenant, vous ne saurez pas si cela a été fait. Fermer quand même ?</translation>
    </message>
    <message>
        <source>There is no secure connection to the server of &quot;^1&quot;: ^2</source>
        <translation>Il n’y a pas de connexion sécurisée au serveur de « ^1 » : ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; answers with more than fits into memory. The connection was ended.</source>
        <translation>Le serveur de « ^1 » envoie une réponse trop longue pour la mémoire. La connexion a été fermée.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; shares one connection between several programs. Connect without the program that does so, or let it pool sessions: ^2</source>
        <translation>Le serveur de « ^1 » partage une connexion entre plusieurs programmes. Connectez-vous sans l’intermédiaire qui le fait, ou réglez-le sur le partage par session : ^2</translation>
    </message>
    <message>
        <source>The name &quot;^1&quot; is too long for a map on a server.</source>
        <translation>Le nom « ^1 » est trop long pour une carte sur un serveur.</translation>
    </message>
    <message>
        <source>You may not read the map &quot;^1&quot;. Its owner can give you the right to.</source>
        <translation>Vous n’avez pas le droit de lire la carte « ^1 ». Son propriétaire peut vous le donner.</translation>
    </message>
    <message>
        <source>Who may use the map &quot;^1&quot; can only be changed by its owner, ^2.</source>
        <translation>Seul le propriétaire de la carte « ^1 », ^2, peut changer qui a le droit de l’utiliser.</translation>
    </message>
    <message>
        <source>The column of tables with geometries as text (WKT).</source>
        <translation>La colonne des tables contenant les géométries sous forme de texte (WKT).</translation>
    </message>
    <message>
        <source>The columns of tables with the coordinates; without this they are guessed.</source>
        <translation>Les colonnes de coordonnées des tables ; sinon elles sont devinées.</translation>
    </message>
    <message>
        <source>The connection to the server of &quot;^1&quot; was lost: ^2. What was not stored can be tried again.</source>
        <translation>La connexion au serveur de « ^1 » a été perdue : ^2. Ce qui n’a pas été enregistré peut être tenté de nouveau.</translation>
    </message>
    <message>
        <source>The coordinate system of the data that name none, such as EPSG:25832; data that name one keep it. Without this option, degrees are assumed where they fit, else the map's system.</source>
        <translation>Le système de coordonnées des données qui n’en indiquent aucun, par exemple EPSG:25832 ; les données qui en indiquent un le gardent. Sans cette option, des degrés sont supposés s’ils conviennent, sinon le système de la carte.</translation>
    </message>
    <message>
        <source>The coordinate system of the map. Without this option, a map keeps its own; for a new map the data of the largest area decide.</source>
        <translation>Le système de coordonnées de la carte. Sans cette option, une carte garde le sien ; pour une nouvelle carte, les données les plus étendues décident.</translation>
    </message>
    <message>
        <source>The coordinate system that was chosen for &quot;%1&quot; is not known: &quot;%2&quot;.</source>
        <translation>Le système de coordonnées choisi pour « %1 » n’est pas connu : « %2 ».</translation>
    </message>
    <message>
        <source>The coordinates in the data stay as they are; the system says where they lie.</source>
        <translation>Les coordonnées des données restent telles quelles ; le système indique où elles se trouvent.</translation>
    </message>
    <message>
        <source>The data of these layers are in no folder of this computer.</source>
        <translation>Les données de ces couches ne se trouvent dans aucun dossier de cet ordinateur.</translation>
    </message>
    <message>
        <source>The features of this layer have no attributes.</source>
        <translation>Les objets de cette couche n’ont pas d’attributs.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be opened.</source>
        <translation>Le dossier « %1 » ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; cannot be read: %2</source>
        <translation>Le guide « %1 » ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>Le guide n’est pas installé.</translation>
    </message>
    <message>
        <source>The layer is not selectable on the map.</source>
        <translation>La couche n’est pas sélectionnable sur la carte.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; belongs to %2. Choose another name.</source>
        <translation>La carte « %1 » appartient à %2. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open by %2 and cannot be replaced now.</source>
        <translation>La carte « %1 » est ouverte par %2 et ne peut pas être remplacée maintenant.</translation>
    </message>
    <message>
        <source>The map does not show these features.</source>
        <translation>La carte n’affiche pas ces objets.</translation>
    </message>
    <message>
        <source>The map has no coordinate system yet; click to choose one.</source>
        <translation>La carte n’a pas encore de système de coordonnées ; cliquez pour en choisir un.</translation>
    </message>
    <message>
        <source>The map has no features of the chosen layers.</source>
        <translation>La carte n’a aucun objet des couches choisies.</translation>
    </message>
    <message>
        <source>The map has no layer with data.</source>
        <translation>La carte n’a aucune couche avec des données.</translation>
    </message>
    <message>
        <source>The map is read-only. You can look at everything, but change nothing.</source>
        <translation>La carte est en lecture seule. Vous pouvez tout consulter, mais rien modifier.</translation>
    </message>
    <message>
        <source>The map, such as &quot;postgresql:///maps?schema=Town&quot;.</source>
        <translation>La carte, par exemple « postgresql:///maps?schema=Town ».</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains a password. Leave it out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>L’emplacement « ^1 » contient un mot de passe. Retirez-le : il a sa place dans le fichier de mots de passe de PostgreSQL, ou il vous sera demandé.</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains the setting &quot;^2&quot;, which may only be in a service file of PostgreSQL.</source>
        <translation>L’emplacement « ^1 » contient le réglage « ^2 », qui n’est permis que dans un fichier de services de PostgreSQL.</translation>
    </message>
    <message>
        <source>The rows stay as they were. %1</source>
        <translation>Les lignes restent telles quelles. %1</translation>
    </message>
    <message>
        <source>The scale of the map. Type another one, such as %1, and press Enter.</source>
        <translation>L’échelle de la carte. Saisissez-en une autre, par exemple %1, et appuyez sur Entrée.</translation>
    </message>
    <message>
        <source>The server did not accept the password.</source>
        <translation>Le serveur n’a pas accepté le mot de passe.</translation>
    </message>
    <message>
        <source>The server does not allow this to you on &quot;^1&quot;: ^2</source>
        <translation>Le serveur ne vous permet pas cela sur « ^1 » : ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; cannot be reached: ^2</source>
        <translation>Le serveur de « ^1 » est injoignable : ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; does not answer. What was not stored can be tried again.</source>
        <translation>Le serveur de « ^1 » ne répond pas. Ce qui n’a pas été enregistré peut être tenté de nouveau.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; has not enough memory for this.</source>
        <translation>Le serveur de « ^1 » n’a pas assez de mémoire pour cela.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; refused the user or the password: ^2</source>
        <translation>Le serveur de « ^1 » a refusé l’utilisateur ou le mot de passe : ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; runs PostgreSQL ^2. Version 13 or a newer one is needed.</source>
        <translation>Le serveur de « ^1 » utilise PostgreSQL ^2. Il faut la version 13 ou une version plus récente.</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; takes no more connections at present. Try again in a moment.</source>
        <translation>Le serveur de « ^1 » n’accepte plus de connexions pour le moment. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is open: ^2. Try again when it is closed there.</source>
        <translation>La carte « ^1 » est ouverte : ^2. Réessayez lorsqu’elle y sera fermée.</translation>
    </message>
    <message>
        <source>There are no PostGIS tables on this server that you may read.</source>
        <translation>Il n’y a sur ce serveur aucune table PostGIS que vous puissiez lire.</translation>
    </message>
    <message>
        <source>There are no maps on this server yet that you may open.</source>
        <translation>Il n’y a encore sur ce serveur aucune carte que vous puissiez ouvrir.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; on the server already. Replace it, for everybody?</source>
        <translation>Il y a déjà une carte « %1 » sur le serveur. La remplacer, pour tout le monde ?</translation>
    </message>
    <message>
        <source>There is no map &quot;^1&quot; on this server.</source>
        <translation>Il n’y a pas de carte « ^1 » sur ce serveur.</translation>
    </message>
    <message>
        <source>The map: a file, or a place on a server.</source>
        <translation>La carte : un fichier, ou un emplacement sur un serveur.</translation>
    </message>
    <message>
        <source>--repair is for map files; a map on a server is only checked.</source>
        <translation>--repair s’applique aux fichiers de carte ; une carte sur un serveur est seulement vérifiée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was copied to &quot;%2&quot;.</source>
        <translation>« %1 » a été copiée vers « %2 ».</translation>
    </message>
    <message>
        <source>Replace the map that is at the new place, unless it is open anywhere.</source>
        <translation>Remplacer la carte qui se trouve au nouvel emplacement, sauf si elle est ouverte quelque part.</translation>
    </message>
    <message>
        <source>Where the copy is made: a file, or a place on a server.</source>
        <translation>Où la copie est créée : un fichier, ou un emplacement sur un serveur.</translation>
    </message>
    <message>
        <source>Copy a map with all its layers, groups, schemes and themes: a file to a server, a map on a server to a file, or one to another of the same kind. The data of the layers stay where they are. A place on a server is written as postgresql://SERVER/DATABASE?schema=MAP.
Exit code: 0 the copy is complete, 1 there is none, 2 the command was not understood.</source>
        <translation>Copier une carte avec toutes ses couches, ses groupes, ses schémas et ses thèmes : un fichier vers un serveur, une carte d’un serveur vers un fichier, ou entre deux emplacements de même nature. Les données des couches restent où elles sont. Un emplacement sur un serveur s’écrit postgresql://SERVEUR/BASE?schema=CARTE.
Code de sortie : 0 la copie est complète, 1 il n’y en a pas, 2 la commande n’a pas été comprise.</translation>
    </message>
    <message>
        <source>The layers of &quot;^1&quot; are kept in a way that cannot be copied.</source>
        <translation>Les couches de « ^1 » sont conservées d’une manière qui ne permet pas de les copier.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because values do not fit their columns: ^2. In a map file, &quot;orvane check --repair&quot; replaces such values.</source>
        <translation>« ^1 » ne peut pas être copiée, car des valeurs ne conviennent pas à leurs colonnes : ^2. Dans un fichier de carte, « orvane check --repair » remplace ces valeurs.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; was not copied because rows of the table &quot;^2&quot; are missing in the copy.</source>
        <translation>« ^1 » n’a pas été copiée, car des lignes de la table « ^2 » manquent dans la copie.</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because rows of the table &quot;^2&quot; refer to rows that are missing. In a map file, &quot;orvane check --repair&quot; removes such rows.</source>
        <translation>« ^1 » ne peut pas être copiée, car des lignes de la table « ^2 » renvoient à des lignes absentes. Dans un fichier de carte, « orvane check --repair » supprime ces lignes.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created because the server has something of that name already.</source>
        <translation>La carte « ^1 » ne peut pas être créée, car le serveur contient déjà quelque chose de ce nom.</translation>
    </message>
    <message>
        <source>Changes to &quot;^1&quot; cannot be undone because your role may not make temporary tables in its database.</source>
        <translation>Les modifications de « ^1 » ne peuvent pas être annulées, car votre rôle ne peut pas créer de tables temporaires dans la base de données.</translation>
    </message>
    <message>
        <source>It is not known what the last operation changed in &quot;^1&quot;; it cannot be undone.</source>
        <translation>On ne sait pas ce que la dernière opération a modifié dans « ^1 » ; elle ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains &quot;^2&quot;, which does not belong in a map.</source>
        <translation>La carte « ^1 » est incorrecte : elle contient « ^2 », qui n’a rien à faire dans une carte.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; is joined with others outside of it.</source>
        <translation>La carte « ^1 » est incorrecte : la table « ^2 » est liée à des tables extérieures.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; lacks a trigger that tells others what has changed.</source>
        <translation>La carte « ^1 » est incorrecte : il manque à la table « ^2 » un déclencheur qui signale aux autres ce qui a changé.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: everybody may create objects in the schema &quot;^2&quot;.</source>
        <translation>La carte « ^1 » est incorrecte : tout le monde peut créer des objets dans le schéma « ^2 ».</translation>
    </message>
    <message>
        <source>The source cannot be read.</source>
        <translation>La source ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The source names none; the coordinates are taken as those of the map.</source>
        <translation>La source n’en indique aucun ; les coordonnées sont prises pour celles de la carte.</translation>
    </message>
    <message>
        <source>The source says so.</source>
        <translation>La source l’indique.</translation>
    </message>
    <message>
        <source>The statement ^2 cannot be run on &quot;^1&quot; by itself.</source>
        <translation>L’instruction ^2 ne peut pas être exécutée à part sur « ^1 ».</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; of &quot;%2&quot; lacks the column &quot;%3&quot; with coordinates.</source>
        <translation>La table « %1 » de « %2 » n’a pas la colonne de coordonnées « %3 ».</translation>
    </message>
    <message>
        <source>There is already a theme &quot;%1&quot;.</source>
        <translation>Il y a déjà un thème « %1 ».</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>Il n’y a pas de vue antérieure.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>Il n’y a pas de vue ultérieure.</translation>
    </message>
    <message>
        <source>There is no table &quot;%1&quot; with geometries on the server that you may read.</source>
        <translation>Il n’y a sur le serveur aucune table « %1 » avec géométries que vous puissiez lire.</translation>
    </message>
    <message>
        <source>These layers are in too many different folders.</source>
        <translation>Ces couches se trouvent dans trop de dossiers différents.</translation>
    </message>
    <message>
        <source>This is a folder: choose a file in it, or drop the folder on the map to add all its data.</source>
        <translation>C'est un dossier : choisissez un fichier qu'il contient, ou déposez le dossier sur la carte pour ajouter toutes ses données.</translation>
    </message>
    <message>
        <source>This is not a known coordinate system.</source>
        <translation>Ce n’est pas un système de coordonnées connu.</translation>
    </message>
    <message>
        <source>This layer has no data, and so no attributes.</source>
        <translation>Cette couche n’a pas de données, donc pas d’attributs.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Where are the coordinates of the rows?</source>
        <translation>Où sont les coordonnées des lignes ?</translation>
    </message>
    <message>
        <source>Where the data of %1 lie is not known: they could not be read to the end.</source>
        <translation>L’emplacement des données de %1 n’est pas connu : elles n’ont pas pu être lues jusqu’au bout.</translation>
    </message>
    <message>
        <source>Write JSON, for scripts.</source>
        <translation>Écrire du JSON, pour les scripts.</translation>
    </message>
    <message>
        <source>X and Y are the same column.</source>
        <translation>X et Y sont la même colonne.</translation>
    </message>
    <message>
        <source>Yellow to red</source>
        <translation>Du jaune au rouge</translation>
    </message>
    <message>
        <source>Yellow to violet</source>
        <translation>Du jaune au violet</translation>
    </message>
    <message>
        <source>You may</source>
        <translation>Vous pouvez</translation>
    </message>
    <message>
        <source>You may read this map, but not change it. Its owner can give you the right to edit it.</source>
        <translation>Vous pouvez lire cette carte, mais pas la modifier. Son propriétaire peut vous en donner le droit.</translation>
    </message>
    <message>
        <source>Zoom to &amp;Layer</source>
        <translation>Zoomer sur la &amp;couche</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Zoomer sur la &amp;sélection</translation>
    </message>
    <message>
        <source>Zoom to a rectangle that you draw; with every other tool, hold Shift and drag</source>
        <translation>Zoomer sur un rectangle que l’on trace ; avec tout autre outil, tracer en maintenant Maj</translation>
    </message>
    <message>
        <source>compared: %1</source>
        <translation>comparé : %1</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Contient</translation>
    </message>
    <message>
        <source>In Your Own Order</source>
        <translation>Dans votre ordre</translation>
    </message>
    <message>
        <source>It does not say which properties it holds.</source>
        <translation>Il n’indique pas quelles propriétés il contient.</translation>
    </message>
    <message>
        <source>It gets the present values of the layers. The current scheme stays current.</source>
        <translation>Il reçoit les valeurs présentes des couches. Le schéma actuel reste actuel.</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Des&amp;cendre</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>Nouveau schéma</translation>
    </message>
    <message>
        <source>Reorder Schemes</source>
        <translation>Réorganisation des schémas</translation>
    </message>
    <message>
        <source>S&amp;ort by Name</source>
        <translation>&amp;Trier par nom</translation>
    </message>
    <message>
        <source>Sort Schemes by Name</source>
        <translation>Tri des schémas par nom</translation>
    </message>
    <message>
        <source>Sort &amp;Table</source>
        <translation>Trier le &amp;tableau</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the map was opened.</source>
        <translation>Le schéma « %1 » a été appliqué à l’ouverture de la carte.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the project was opened.</source>
        <translation>Le schéma « %1 » a été appliqué à l’ouverture du projet.</translation>
    </message>
    <message>
        <source>The scheme holds:</source>
        <translation>Le schéma contient :</translation>
    </message>
    <message>
        <source>The table is sorted by a column. Go back to your own order first.</source>
        <translation>Le tableau est trié par une colonne. Revenez d’abord à votre ordre.</translation>
    </message>
    <message>
        <source>conditions are not supported for tables on a server</source>
        <translation>les conditions ne sont pas prises en charge pour les tables d’un serveur</translation>
    </message>
    <message>
        <source>it lacks a column with coordinates</source>
        <translation>il manque une colonne de coordonnées</translation>
    </message>
    <message>
        <source>its points are numbers in a table</source>
        <translation>ses points sont des nombres dans une table</translation>
    </message>
    <message>
        <source>its primary key is not one whole number</source>
        <translation>sa clé primaire n’est pas un nombre entier unique</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>aucune donnée</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>non indiquée</translation>
    </message>
    <message>
        <source>the two schemes hold nothing in common</source>
        <translation>les deux schémas n’ont rien en commun</translation>
    </message>
    <message>
        <source>--time-limit needs a whole number of seconds.</source>
        <translation>--time-limit demande un nombre entier de secondes.</translation>
    </message>
    <message>
        <source>... and %1 more values.</source>
        <translation>... et %1 autres valeurs.</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... et %1 de plus.</translation>
    </message>
    <message>
        <source>1:%1</source>
        <translation>1:%1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;A small desktop map program, the host of the Orvane layer control.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;Un petit programme cartographique de bureau, hôte du contrôle des couches d’Orvane.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;aucune&gt;</translation>
    </message>
    <message>
        <source>A layer cannot be created in the file &quot;%1&quot;.</source>
        <translation>Aucune couche ne peut être créée dans le fichier « %1 ».</translation>
    </message>
    <message>
        <source>A layer from map &amp;data</source>
        <translation>Une couche de &amp;données cartographiques</translation>
    </message>
    <message>
        <source>A list has an entry with the ID %1.</source>
        <translation>Une liste contient une entrée avec l’ID %1.</translation>
    </message>
    <message>
        <source>A list has the ID %1 twice.</source>
        <translation>Une liste contient deux fois l’ID %1.</translation>
    </message>
    <message>
        <source>A longer operation on &quot;^1&quot; is not finished yet. Wait until it is, or cancel it.</source>
        <translation>Une longue opération sur « ^1 » n’est pas encore terminée. Attendez qu’elle le soit, ou annulez-la.</translation>
    </message>
    <message>
        <source>A picture of %1 by %2 pixels is too large.</source>
        <translation>Une image de %1 sur %2 pixels est trop grande.</translation>
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
        <source>A temporary copy of &quot;%1&quot; cannot be made in the folder &quot;%2&quot;. Make room there, or set TMPDIR to another folder.</source>
        <translation>Impossible de créer une copie temporaire de « %1 » dans le dossier « %2 ». Libérez de la place ou indiquez un autre dossier dans TMPDIR.</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>A&amp;ttribute:</source>
        <translation>A&amp;ttribut :</translation>
    </message>
    <message>
        <source>A5 to A0, Letter, Legal, Tabloid, 200x150mm or 1600x900px. The default is A4.</source>
        <translation>A5 à A0, Letter, Legal, Tabloid, 200x150mm ou 1600x900px. Par défaut : A4.</translation>
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
        <source>Adding layers to the map</source>
        <translation>Ajout des couches à la carte</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Toutes les propriétés</translation>
    </message>
    <message>
        <source>All schemes of this map were saved for new maps.</source>
        <translation>Tous les schémas de cette carte ont été enregistrés pour les nouvelles cartes.</translation>
    </message>
    <message>
        <source>All schemes of this project were saved for new projects.</source>
        <translation>Tous les schémas de ce projet ont été enregistrés pour les nouveaux projets.</translation>
    </message>
    <message>
        <source>An &amp;empty layer</source>
        <translation>Une couche &amp;vide</translation>
    </message>
    <message>
        <source>An argument is missing.</source>
        <translation>Il manque un argument.</translation>
    </message>
    <message>
        <source>An earlier change to the map &quot;^1&quot; failed and cannot be undone at present: ^2. Try again, or open the map again.</source>
        <translation>Une modification précédente de la carte « ^1 » a échoué et ne peut pas être annulée pour le moment : ^2. Réessayez ou ouvrez de nouveau la carte.</translation>
    </message>
    <message>
        <source>An empty value cannot be stored in &quot;^1&quot;.</source>
        <translation>Une valeur vide ne peut pas être enregistrée dans « ^1 ».</translation>
    </message>
    <message>
        <source>An unknown error has occurred.</source>
        <translation>Une erreur inconnue s’est produite.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Area: %1, perimeter: %2</source>
        <translation>Surface : %1, périmètre : %2</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Surfaces</translation>
    </message>
    <message>
        <source>As a picture: %1 × %2 pixels</source>
        <translation>En image : %1 × %2 pixels</translation>
    </message>
    <message>
        <source>At the scale &amp;1:</source>
        <translation>À l'échelle &amp;1 :</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Automatic (%1)</source>
        <translation>Automatique (%1)</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>Par&amp;courir...</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>background</source>
        <translation>couleur de fond</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Couleur de fond</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cased lines</source>
        <translation>Lignes bordées</translation>
    </message>
    <message>
        <source>Cased lines, labelled</source>
        <translation>Lignes bordées, étiquetées</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>Modification de « %1 »</translation>
    </message>
    <message>
        <source>Change %1 Layers</source>
        <translation>Modification de %1 couches</translation>
    </message>
    <message>
        <source>Change Code of &quot;%1&quot;</source>
        <translation>Modification du code de « %1 »</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>Modifié ailleurs</translation>
    </message>
    <message>
        <source>Changes in the layer control that were not applied have been dropped.</source>
        <translation>Des modifications non appliquées du contrôle des couches ont été abandonnées.</translation>
    </message>
    <message>
        <source>Changes made in one window are saved immediately and appear in the other within a second.</source>
        <translation>Les modifications faites dans une fenêtre sont enregistrées immédiatement et apparaissent dans l’autre en moins d’une seconde.</translation>
    </message>
    <message>
        <source>Check a map for damage, invalid values, broken references and missing data.
Exit code: 0 no problems, 1 problems found, 2 the command was not understood.</source>
        <translation>Rechercher dans une carte les dégâts, les valeurs non valides, les références non valides et les données absentes.
Code de sortie : 0 aucun problème, 1 problèmes trouvés, 2 la commande n'a pas été comprise.</translation>
    </message>
    <message>
        <source>Choose the attributes that label and colour the features of a layer</source>
        <translation>Choisir les attributs qui étiquettent et colorent les objets d’une couche</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Classes</translation>
    </message>
    <message>
        <source>Click a feature with the Identify tool.</source>
        <translation>Cliquez sur un objet avec l’outil Identifier.</translation>
    </message>
    <message>
        <source>Click to set a vertex, double-click to end.</source>
        <translation>Cliquez pour placer un sommet, double-cliquez pour terminer.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code :</translation>
    </message>
    <message>
        <source>Com&amp;pare</source>
        <translation>Com&amp;parer</translation>
    </message>
    <message>
        <source>Comparing Schemes</source>
        <translation>Comparaison des schémas</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Create &quot;%1&quot;</source>
        <translation>Création de « %1 »</translation>
    </message>
    <message>
        <source>Create Scheme &quot;%1&quot;</source>
        <translation>Création du schéma « %1 »</translation>
    </message>
    <message>
        <source>Create a new map file</source>
        <translation>Créer un nouveau fichier de carte</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Taille personnalisée</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>&amp;Dupliquer...</translation>
    </message>
    <message>
        <source>Dash-dot line</source>
        <translation>Ligne en trait-point</translation>
    </message>
    <message>
        <source>Dash-dot-dot line</source>
        <translation>Ligne en trait-point-point</translation>
    </message>
    <message>
        <source>Dashed line</source>
        <translation>Ligne en tirets</translation>
    </message>
    <message>
        <source>Data f&amp;ile:</source>
        <translation>F&amp;ichier de données :</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Suppression de « %1 »</translation>
    </message>
    <message>
        <source>Delete %1 Layers</source>
        <translation>Suppression de %1 couches</translation>
    </message>
    <message>
        <source>Delete %1 layers?</source>
        <translation>Supprimer %1 couches ?</translation>
    </message>
    <message>
        <source>Delete %1 Schemes</source>
        <translation>Suppression de %1 schémas</translation>
    </message>
    <message>
        <source>Delete %1 schemes? The layers stay as they are.</source>
        <translation>Supprimer %1 schémas ? Les couches restent telles quelles.</translation>
    </message>
    <message>
        <source>Delete Layer</source>
        <translation>Supprimer la couche</translation>
    </message>
    <message>
        <source>Delete Layers</source>
        <translation>Supprimer les couches</translation>
    </message>
    <message>
        <source>Delete Scheme &quot;%1&quot;</source>
        <translation>Suppression du schéma « %1 »</translation>
    </message>
    <message>
        <source>Delete Schemes</source>
        <translation>Supprimer des schémas</translation>
    </message>
    <message>
        <source>Delete the scheme &quot;%1&quot;? The layers stay as they are.</source>
        <translation>Supprimer le schéma « %1 » ? Les couches restent telles quelles.</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Supprimer un thème</translation>
    </message>
    <message>
        <source>Delete the layer &quot;%1&quot;?</source>
        <translation>Supprimer la couche « %1 » ?</translation>
    </message>
    <message>
        <source>Delete the theme &quot;%1&quot;? Its layers stay in the map.</source>
        <translation>Supprimer le thème « %1 » ? Ses couches restent dans la carte.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Différences : %1</translation>
    </message>
    <message>
        <source>Differences: %1 of %2</source>
        <translation>Différences : %1 sur %2</translation>
    </message>
    <message>
        <source>display mode</source>
        <translation>mode d’affichage</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>Mode d’affichage</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>indifférent</translation>
    </message>
    <message>
        <source>Dots per inch. The default is 300, or 96 for a size in pixels.</source>
        <translation>Points par pouce. Par défaut : 300, ou 96 pour une taille en pixels.</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>Ligne en pointillés</translation>
    </message>
    <message>
        <source>Drag a feature to move it.</source>
        <translation>Faites glisser un objet pour le déplacer.</translation>
    </message>
    <message>
        <source>Drag the feature of %1 to move it.</source>
        <translation>Faites glisser l’objet de %1 pour le déplacer.</translation>
    </message>
    <message>
        <source>Drag the map, zoom with the wheel</source>
        <translation>Faire glisser la carte, zoomer avec la molette</translation>
    </message>
    <message>
        <source>Draw a map as PDF, SVG or PNG. The map file is only read.
Exit code: 0 all was drawn, 1 something was not, 2 the command was not understood.</source>
        <translation>Dessiner une carte en PDF, SVG ou PNG. Le fichier de carte est seulement lu.
Code de sortie : 0 tout a été dessiné, 1 quelque chose ne l'a pas été, 2 la commande n'a pas été comprise.</translation>
    </message>
    <message>
        <source>Draw at the scale 1:N around the middle of the map.</source>
        <translation>Dessiner à l'échelle 1:N autour du centre de la carte.</translation>
    </message>
    <message>
        <source>draw priority</source>
        <translation>priorité</translation>
    </message>
    <message>
        <source>Draw the layers as this scheme has them; the map file stays as it is.</source>
        <translation>Dessiner les couches comme dans ce schéma ; le fichier de carte reste tel quel.</translation>
    </message>
    <message>
        <source>Drawing the map</source>
        <translation>Dessin de la carte</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>Dessin...</translation>
    </message>
    <message>
        <source>Others who have the map open: %1</source>
        <translation>Autres personnes qui ont ouvert la carte : %1</translation>
    </message>
    <message>
        <source>Connection lost, trying again</source>
        <translation>Connexion perdue, nouvel essai en cours</translation>
    </message>
    <message>
        <source>The server of the map cannot be reached. What is not applied stays here.</source>
        <translation>Le serveur de la carte est injoignable. Ce qui n’est pas appliqué reste ici.</translation>
    </message>
    <message>
        <source>Connecting again...</source>
        <translation>Reconnexion...</translation>
    </message>
    <message>
        <source>The server of the map is being contacted again.</source>
        <translation>Le serveur de la carte est contacté à nouveau.</translation>
    </message>
    <message>
        <source>Try Now</source>
        <translation>Essayer maintenant</translation>
    </message>
    <message>
        <source>Connect to the server of the map now</source>
        <translation>Se connecter maintenant au serveur de la carte</translation>
    </message>
    <message>
        <source>Duplicate Scheme</source>
        <translation>Dupliquer le schéma</translation>
    </message>
    <message>
        <source>Duplicate Scheme &quot;%1&quot;</source>
        <translation>Duplication du schéma « %1 »</translation>
    </message>
    <message>
        <source>Edits the properties of many layers at once, and keeps them in schemes.</source>
        <translation>Modifie les propriétés de plusieurs couches à la fois et les conserve dans des schémas.</translation>
    </message>
    <message>
        <source>End the check of the file after that time; 0 for no limit. The default is 600.</source>
        <translation>Terminer la vérification du fichier après ce délai ; 0 pour aucune limite. Par défaut : 600.</translation>
    </message>
    <message>
        <source>enquirable</source>
        <translation>interrogeable</translation>
    </message>
    <message>
        <source>Enquirable</source>
        <translation>Interrogeable</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>Equal counts</source>
        <translation>Effectifs égaux</translation>
    </message>
    <message>
        <source>Equal steps</source>
        <translation>Intervalles égaux</translation>
    </message>
    <message>
        <source>Export Map</source>
        <translation>Exporter la carte</translation>
    </message>
    <message>
        <source>Export Map Theme &quot;%1&quot;</source>
        <translation>Exporter le thème de carte « %1 »</translation>
    </message>
    <message>
        <source>Export Scheme</source>
        <translation>Exporter le schéma</translation>
    </message>
    <message>
        <source>Export Scheme &quot;%1&quot;</source>
        <translation>Exportation du schéma « %1 »</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme</source>
        <translation>Exporter le schéma comme thème de carte</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme...</source>
        <translation>Exporter le schéma comme thème de carte...</translation>
    </message>
    <message>
        <source>Export Scheme...</source>
        <translation>Exporter le schéma...</translation>
    </message>
    <message>
        <source>Extent of the &amp;window, fitted to the page</source>
        <translation>Étendue de la &amp;fenêtre, ajustée à la page</translation>
    </message>
    <message>
        <source>Feature %1</source>
        <translation>Objet %1</translation>
    </message>
    <message>
        <source>Feature Attributes</source>
        <translation>Attributs de l’objet</translation>
    </message>
    <message>
        <source>Features found: %1</source>
        <translation>Objets trouvés : %1</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>&amp;Filtre :</translation>
    </message>
    <message>
        <source>Files, or folders with files in them.</source>
        <translation>Des fichiers, ou des dossiers qui en contiennent.</translation>
    </message>
    <message>
        <source>fill colour</source>
        <translation>couleur de remplissage</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Couleur de remplissage</translation>
    </message>
    <message>
        <source>fill style</source>
        <translation>motif</translation>
    </message>
    <message>
        <source>Fill style</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Find Missing Data</source>
        <translation>Rechercher les données manquantes</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>GeoPackage</source>
        <translation>GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage &amp;file:</source>
        <translation>&amp;Fichier GeoPackage :</translation>
    </message>
    <message>
        <source>GeoPackages (*.gpkg)</source>
        <translation>GeoPackages (*.gpkg)</translation>
    </message>
    <message>
        <source>Give the layers of the map the chosen values of the column &quot;To&quot;.</source>
        <translation>Donner aux couches de la carte les valeurs choisies de la colonne « Vers ».</translation>
    </message>
    <message>
        <source>Graduated</source>
        <translation>Gradué</translation>
    </message>
    <message>
        <source>Graduated, labelled</source>
        <translation>Gradué, étiqueté</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
    <message>
        <source>Highlight features of hitable layers under the pointer with any tool</source>
        <translation>Mettre en évidence les objets des couches cliquables sous le pointeur, avec tout outil</translation>
    </message>
    <message>
        <source>Hitable</source>
        <translation>Cliquable</translation>
    </message>
    <message>
        <source>Import Map Theme &quot;%1&quot;</source>
        <translation>Importer le thème de carte « %1 »</translation>
    </message>
    <message>
        <source>Import Map Themes</source>
        <translation>Importer des thèmes de carte</translation>
    </message>
    <message>
        <source>Import Map Themes...</source>
        <translation>Importer des thèmes de carte...</translation>
    </message>
    <message>
        <source>hitable</source>
        <translation>cliquable</translation>
    </message>
    <message>
        <source>Import Scheme</source>
        <translation>Importer un schéma</translation>
    </message>
    <message>
        <source>Import Scheme &quot;%1&quot;</source>
        <translation>Importation du schéma « %1 »</translation>
    </message>
    <message>
        <source>Import Scheme...</source>
        <translation>Importer un schéma...</translation>
    </message>
    <message>
        <source>In the file, not in the map:</source>
        <translation>Dans le fichier, pas dans la carte :</translation>
    </message>
    <message>
        <source>In the map, not in the file:</source>
        <translation>Dans la carte, pas dans le fichier :</translation>
    </message>
    <message>
        <source>It contains a line that is too long.</source>
        <translation>Il contient une ligne trop longue.</translation>
    </message>
    <message>
        <source>It does not contain a scheme name.</source>
        <translation>Il ne contient pas de nom de schéma.</translation>
    </message>
    <message>
        <source>It does not contain a valid version number.</source>
        <translation>Il ne contient pas de numéro de version valide.</translation>
    </message>
    <message>
        <source>It holds no layers.</source>
        <translation>Il ne contient aucune couche.</translation>
    </message>
    <message>
        <source>it is in none of these folders: %1</source>
        <translation>il n’est dans aucun de ces dossiers : %1</translation>
    </message>
    <message>
        <source>It is not a layer scheme.</source>
        <translation>Ce n’est pas un schéma de couches.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n'est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>It is not valid JSON (error at byte %1).</source>
        <translation>Ce n’est pas du JSON valide (erreur à l’octet %1).</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Il est trop volumineux.</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>cela prend trop de temps</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;%1&quot;, this program with &quot;%2&quot;</source>
        <translation>il a été compilé avec la bibliothèque standard « %1 », ce programme avec « %2 »</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>Il a été écrit par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>It will be removed from its groups: %1.</source>
        <translation>Elle sera retirée de ses groupes : %1.</translation>
    </message>
    <message>
        <source>Its data file stays. You can undo the deletion.</source>
        <translation>Son fichier de données reste. La suppression peut être annulée.</translation>
    </message>
    <message>
        <source>Its saved values will be removed from the layer schemes: %1.</source>
        <translation>Ses valeurs enregistrées seront supprimées des schémas de couches : %1.</translation>
    </message>
    <message>
        <source>Labelled</source>
        <translation>Étiqueté</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot;: %2</source>
        <translation>Couche « %1 » : %2</translation>
    </message>
    <message>
        <source>Layer %1 has no valid &quot;%2&quot;.</source>
        <translation>La couche %1 n’a pas de « %2 » valide.</translation>
    </message>
    <message>
        <source>Layer &amp;Rendering...</source>
        <translation>&amp;Rendu de la couche...</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>Contrôle des couches</translation>
    </message>
    <message>
        <source>Layer Rendering</source>
        <translation>Rendu de la couche</translation>
    </message>
    <message>
        <source>Layer schemes</source>
        <translation>Schémas de couches</translation>
    </message>
    <message>
        <source>Layer schemes (*.json)</source>
        <translation>Schémas de couches (*.json)</translation>
    </message>
    <message>
        <source>Layer schemes (*.json);;All files (*)</source>
        <translation>Schémas de couches (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Layers added to &quot;%1&quot;: %2</source>
        <translation>Couches ajoutées à « %1 » : %2</translation>
    </message>
    <message>
        <source>Layers differ from the scheme &quot;%1&quot;. Save it before switching to &quot;%2&quot;?</source>
        <translation>Des couches diffèrent du schéma « %1 ». L’enregistrer avant de passer à « %2 » ?</translation>
    </message>
    <message>
        <source>Layers in both the file and this map: %1</source>
        <translation>Couches présentes dans le fichier et dans cette carte : %1</translation>
    </message>
    <message>
        <source>Layers not in the scheme &quot;%1&quot;, left unchanged: %2</source>
        <translation>Couches absentes du schéma « %1 », laissées inchangées : %2</translation>
    </message>
    <message>
        <source>Layers of the file that this map does not have: %1</source>
        <translation>Couches du fichier absentes de cette carte : %1</translation>
    </message>
    <message>
        <source>Layers of this map that the file does not have, which keep their values: %1</source>
        <translation>Couches de cette carte absentes du fichier, qui gardent leurs valeurs : %1</translation>
    </message>
    <message>
        <source>Layers that differ</source>
        <translation>Couches différentes</translation>
    </message>
    <message>
        <source>Layers that differ from the scheme &quot;%1&quot;: %2</source>
        <translation>Couches qui diffèrent du schéma « %1 » : %2</translation>
    </message>
    <message>
        <source>Leave the legend out.</source>
        <translation>Omettre la légende.</translation>
    </message>
    <message>
        <source>Leave the scale bar out.</source>
        <translation>Omettre la barre d'échelle.</translation>
    </message>
    <message>
        <source>Length: %1</source>
        <translation>Longueur : %1</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Couleur de ligne</translation>
    </message>
    <message>
        <source>line colour, or its use for symbols</source>
        <translation>couleur de ligne, ou son emploi pour les symboles</translation>
    </message>
    <message>
        <source>line style</source>
        <translation>style de ligne</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Style de ligne</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>Épaisseur de ligne</translation>
    </message>
    <message>
        <source>line width</source>
        <translation>épaisseur de ligne</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Load Scheme &quot;%1&quot;</source>
        <translation>Chargement du schéma « %1 »</translation>
    </message>
    <message>
        <source>Load Startup Schemes</source>
        <translation>Chargement des schémas de démarrage</translation>
    </message>
    <message>
        <source>Loading the schemes</source>
        <translation>Chargement des schémas</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillée</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillée</translation>
    </message>
    <message>
        <source>Looking for map data</source>
        <translation>Recherche des données cartographiques</translation>
    </message>
    <message>
        <source>Manage Schemes</source>
        <translation>Gérer les schémas</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Map Data</source>
        <translation>Données cartographiques</translation>
    </message>
    <message>
        <source>Map File</source>
        <translation>Fichier de carte</translation>
    </message>
    <message>
        <source>Map Tools</source>
        <translation>Outils de carte</translation>
    </message>
    <message>
        <source>Map elements</source>
        <translation>Éléments de la carte</translation>
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
        <source>maximum scale</source>
        <translation>échelle maximale</translation>
    </message>
    <message>
        <source>Maximum visible scale</source>
        <translation>Échelle visible maximale</translation>
    </message>
    <message>
        <source>Measure &amp;Area</source>
        <translation>Mesurer une s&amp;urface</translation>
    </message>
    <message>
        <source>Measure &amp;Length</source>
        <translation>Mesurer une &amp;longueur</translation>
    </message>
    <message>
        <source>Measure a line; its vertices snap to layers with snapping turned on</source>
        <translation>Mesurer une ligne ; ses sommets s’accrochent aux couches dont l’accrochage est activé</translation>
    </message>
    <message>
        <source>Measure an area; its vertices snap to layers with snapping turned on</source>
        <translation>Mesurer une surface ; ses sommets s’accrochent aux couches dont l’accrochage est activé</translation>
    </message>
    <message>
        <source>minimum scale</source>
        <translation>échelle minimale</translation>
    </message>
    <message>
        <source>Minimum visible scale</source>
        <translation>Échelle visible minimale</translation>
    </message>
    <message>
        <source>Move Feature in %1</source>
        <translation>Déplacement d’un objet dans %1</translation>
    </message>
    <message>
        <source>Move a feature of an unlocked layer by dragging it</source>
        <translation>Déplacer un objet d’une couche non verrouillée en le faisant glisser</translation>
    </message>
    <message>
        <source>Moved a feature of %1.</source>
        <translation>Un objet de %1 a été déplacé.</translation>
    </message>
    <message>
        <source>Moving a feature of %1. Press Esc to cancel.</source>
        <translation>Déplacement d’un objet de %1. Échap pour annuler.</translation>
    </message>
    <message>
        <source>Moving the feature</source>
        <translation>Déplacement de l’objet</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>New Layer</source>
        <translation>Nouvelle couche</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>New scratch layer</source>
        <translation>Nouvelle couche temporaire</translation>
    </message>
    <message>
        <source>New Theme</source>
        <translation>Nouveau thème</translation>
    </message>
    <message>
        <source>New layer</source>
        <translation>Nouvelle couche</translation>
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
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>No layer here.</source>
        <translation>Aucune couche ici.</translation>
    </message>
    <message>
        <source>No layer of this map is visible.</source>
        <translation>Aucune couche de cette carte n’est visible.</translation>
    </message>
    <message>
        <source>No maps yet</source>
        <translation>Pas encore de carte</translation>
    </message>
    <message>
        <source>No problems were found in &quot;%1&quot;.</source>
        <translation>Aucun problème n’a été trouvé dans « %1 ».</translation>
    </message>
    <message>
        <source>No selectable feature in the rectangle.</source>
        <translation>Aucun objet sélectionnable dans le rectangle.</translation>
    </message>
    <message>
        <source>No themes yet</source>
        <translation>Aucun thème pour l’instant</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>None of the missing files is in &quot;%1&quot;.</source>
        <translation>Aucun des fichiers manquants ne se trouve dans « %1 ».</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>pas encore compté</translation>
    </message>
    <message>
        <source>not in the scheme</source>
        <translation>absent du schéma</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Nothing but the map, up to the edges of the page.</source>
        <translation>Rien que la carte, jusqu'aux bords de la page.</translation>
    </message>
    <message>
        <source>Nothing was repaired because the repair was not finished within %1 seconds.</source>
        <translation>Rien n'a été réparé, car la réparation n'était pas terminée en %1 secondes.</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nombre :</translation>
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
        <source>Open &amp;Data...</source>
        <translation>Ouvrir des &amp;données...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un &amp;récent</translation>
    </message>
    <message>
        <source>Open Data</source>
        <translation>Ouvrir des données</translation>
    </message>
    <message>
        <source>Open Map</source>
        <translation>Ouvrir une carte</translation>
    </message>
    <message>
        <source>Open Map Data</source>
        <translation>Ouverture de données cartographiques</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un fichier récent</translation>
    </message>
    <message>
        <source>Open a map file</source>
        <translation>Ouvrir un fichier de carte</translation>
    </message>
    <message>
        <source>Open the layer control at startup.</source>
        <translation>Ouvrir le contrôle des couches au démarrage.</translation>
    </message>
    <message>
        <source>Opening map data</source>
        <translation>Ouverture des données</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
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
        <translation>Orvane, un petit logiciel de cartes.

Ces commandes s’exécutent sans fenêtre ; chacune a son propre --help :
  orvane MAP --export FILE     dessiner une carte en PDF, SVG ou PNG
  orvane import DATA --to MAP  ajouter des données à une carte
  orvane check MAP             rechercher les problèmes dans une carte
  orvane list MAP              énumérer les couches d’une carte
  orvane copy MAP NEW          copier une carte, aussi vers un serveur ou depuis un serveur
  orvane share PLACE           choisir qui peut utiliser une carte sur un serveur</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>Contour seul</translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation>Motif %1</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Pixels: %1</source>
        <translation>Pixels : %1</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>Veuillez saisir un nom non vide, ou annulez.</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Print Map</source>
        <translation>Imprimer la carte</translation>
    </message>
    <message>
        <source>Print the map, with a preview</source>
        <translation>Imprimer la carte, avec aperçu</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2.</source>
        <translation>QGIS ne peut pas régler ceci pour la couche « %1 » : %2.</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2. Other layers with settings that could not be set: %3.</source>
        <translation>QGIS ne peut pas régler ceci pour la couche « %1 » : %2. Autres couches dont des réglages n’ont pas pu être appliqués non plus : %3.</translation>
    </message>
    <message>
        <source>Quit Orvane</source>
        <translation>Quitter Orvane</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot; was given up because it does not end.</source>
        <translation>La lecture de « %1 » a été abandonnée, car elle ne se termine pas.</translation>
    </message>
    <message>
        <source>Reading attributes</source>
        <translation>Lecture des attributs</translation>
    </message>
    <message>
        <source>Reading map data</source>
        <translation>Lecture des données</translation>
    </message>
    <message>
        <source>Reading the map</source>
        <translation>Lecture de la carte</translation>
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
        <source>Redo Layer Change</source>
        <translation>Rétablir la modification des couches</translation>
    </message>
    <message>
        <source>Redo the last undone change</source>
        <translation>Rétablir la dernière modification annulée</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>Renommage de « %1 »</translation>
    </message>
    <message>
        <source>Rename Group &quot;%1&quot;</source>
        <translation>Renommage du groupe « %1 »</translation>
    </message>
    <message>
        <source>Rename Scheme</source>
        <translation>Renommer le schéma</translation>
    </message>
    <message>
        <source>Rename Scheme &quot;%1&quot;</source>
        <translation>Renommage du schéma « %1 »</translation>
    </message>
    <message>
        <source>Repair what can be repaired.</source>
        <translation>Réparer ce qui peut l'être.</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Revert Scheme</source>
        <translation>Revenir au schéma enregistré</translation>
    </message>
    <message>
        <source>Revert the layers to the values saved in the scheme &quot;%1&quot;?</source>
        <translation>Rétablir les valeurs des couches enregistrées dans le schéma « %1 » ?</translation>
    </message>
    <message>
        <source>Rows of &quot;%1&quot; that refer to missing rows of &quot;%2&quot;: %3.</source>
        <translation>Lignes de « %1 » qui se rapportent à des lignes absentes de « %2 » : %3.</translation>
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
        <source>S&amp;witch to It</source>
        <translation>&amp;Passer à ce schéma</translation>
    </message>
    <message>
        <source>Save Schemes for New Maps</source>
        <translation>Enregistrement des schémas pour les nouvelles cartes</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Échelles</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>Schemes made of map themes: %1</source>
        <translation>Schémas créés à partir de thèmes de carte : %1</translation>
    </message>
    <message>
        <source>selectable</source>
        <translation>sélectionnable</translation>
    </message>
    <message>
        <source>Show the layer control inside this window</source>
        <translation>Afficher le contrôle des couches dans cette fenêtre</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Sélectionnable</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Afficher :</translation>
    </message>
    <message>
        <source>snap required</source>
        <translation>accrochage obligatoire</translation>
    </message>
    <message>
        <source>Snap required</source>
        <translation>Accrochage obligatoire</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Uni</translation>
    </message>
    <message>
        <source>Solid line</source>
        <translation>Ligne continue</translation>
    </message>
    <message>
        <source>style</source>
        <translation>style</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Dessin SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Map As</source>
        <translation>Enregistrer la carte sous</translation>
    </message>
    <message>
        <source>Save Scheme</source>
        <translation>Enregistrer le schéma</translation>
    </message>
    <message>
        <source>Save Scheme &quot;%1&quot;</source>
        <translation>Enregistrement du schéma « %1 »</translation>
    </message>
    <message>
        <source>Save the current layer settings to the scheme &quot;%1&quot;?</source>
        <translation>Enregistrer les réglages actuels des couches dans le schéma « %1 » ?</translation>
    </message>
    <message>
        <source>Save the map to another file and continue with that file</source>
        <translation>Enregistrer la carte dans un autre fichier et continuer avec celui-ci</translation>
    </message>
    <message>
        <source>Save this map before closing it?</source>
        <translation>Enregistrer cette carte avant de la fermer ?</translation>
    </message>
    <message>
        <source>Scale &amp;bar</source>
        <translation>&amp;Barre d'échelle</translation>
    </message>
    <message>
        <source>Scale 1:</source>
        <translation>Échelle 1 :</translation>
    </message>
    <message>
        <source>Scheme: %1</source>
        <translation>Schéma : %1</translation>
    </message>
    <message>
        <source>Scheme: %1 *</source>
        <translation>Schéma : %1 *</translation>
    </message>
    <message>
        <source>Search a folder for the missing data files of the map</source>
        <translation>Chercher dans un dossier les fichiers de données qui manquent à la carte</translation>
    </message>
    <message>
        <source>Select features of selectable layers by a click or a rectangle; Ctrl adds</source>
        <translation>Sélectionner des objets des couches sélectionnables par clic ou rectangle ; Ctrl ajoute</translation>
    </message>
    <message>
        <source>Selected features: %1</source>
        <translation>Objets sélectionnés : %1</translation>
    </message>
    <message>
        <source>Show and edit layers, groups and schemes</source>
        <translation>Afficher et modifier les couches, groupes et schémas</translation>
    </message>
    <message>
        <source>Show or hide the panel with the attributes of identified features</source>
        <translation>Afficher ou masquer le panneau des attributs des objets identifiés</translation>
    </message>
    <message>
        <source>Show the attributes of features of enquirable layers</source>
        <translation>Afficher les attributs des objets des couches interrogeables</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
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
        <source>Style:</source>
        <translation>Style :</translation>
    </message>
    <message>
        <source>Switch Scheme</source>
        <translation>Changer de schéma</translation>
    </message>
    <message>
        <source>Temporary scratch layer</source>
        <translation>Couche temporaire</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>&amp;Vers :</translation>
    </message>
    <message>
        <source>Taking Over Values</source>
        <translation>Reprise des valeurs</translation>
    </message>
    <message>
        <source>The changes cannot be kept for undoing in the folder &quot;^1&quot;: ^2.</source>
        <translation>Les modifications ne peuvent pas être conservées pour l’annulation dans le dossier « ^1 » : ^2.</translation>
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
        <source>The data file &quot;%1&quot; is missing.</source>
        <translation>Le fichier de données « %1 » est introuvable.</translation>
    </message>
    <message>
        <source>The data of this layer cannot be read.</source>
        <translation>Les données de cette couche ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>The feature was changed by another user or program and was not moved.</source>
        <translation>L’objet a été modifié par un autre utilisateur ou programme et n’a pas été déplacé.</translation>
    </message>
    <message>
        <source>The file to export must end in .pdf, .svg or .png.</source>
        <translation>Le fichier à exporter doit se terminer par .pdf, .svg ou .png.</translation>
    </message>
    <message>
        <source>The file to write; its extension .pdf, .svg or .png sets the format.</source>
        <translation>Le fichier à écrire ; son extension .pdf, .svg ou .png détermine le format.</translation>
    </message>
    <message>
        <source>The last change was stored, but it cannot be undone: %1</source>
        <translation>La dernière modification a été enregistrée, mais elle ne peut pas être annulée : %1</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>Le dernier schéma de couches ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; was removed.</source>
        <translation>La couche « %1 » a été retirée.</translation>
    </message>
    <message>
        <source>The layer control holds changes that are not applied yet. Apply or cancel them first.</source>
        <translation>Le contrôle des couches contient des modifications qui ne sont pas encore appliquées. Appliquez-les ou annulez-les d’abord.</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; has no table &quot;^2&quot; to open.</source>
        <translation>La base de données de couches « ^1 » n’a pas de table « ^2 ».</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; refused an operation: ^2</source>
        <translation>La base de données de couches « ^1 » a refusé une opération : ^2</translation>
    </message>
    <message>
        <source>The layer schemes of &quot;%1&quot; were written by a newer program and cannot be read.</source>
        <translation>Les schémas de couches de « %1 » ont été écrits par un programme plus récent et ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The layer schemes of this project are damaged and cannot be read.</source>
        <translation>Les schémas de couches de ce projet sont endommagés et ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The layer schemes of this project were written by a newer program and cannot be read.</source>
        <translation>Les schémas de couches de ce projet ont été écrits par un programme plus récent et ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The layers match the scheme &quot;%1&quot;.</source>
        <translation>Les couches correspondent au schéma « %1 ».</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open in another window or program. Open it here too?</source>
        <translation>La carte « %1 » est ouverte dans une autre fenêtre ou un autre programme. L’ouvrir ici aussi ?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; no longer exists. It was removed from the list.</source>
        <translation>La carte « %1 » n’existe plus. Elle a été retirée de la liste.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created: ^2</source>
        <translation>La carte « ^1 » ne peut pas être créée : ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened because &quot;^2&quot; is not an ordinary file.</source>
        <translation>La carte « ^1 » ne peut pas être ouverte, car « ^2 » n'est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened: ^2</source>
        <translation>La carte « ^1 » ne peut pas être ouverte : ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; does not exist.</source>
        <translation>La carte « ^1 » n’existe pas.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is damaged. Use an earlier copy of it.</source>
        <translation>La carte « ^1 » est endommagée. Utilisez une copie enregistrée précédemment.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is in use by another program. Try again in a moment.</source>
        <translation>La carte « ^1 » est utilisée par un autre programme. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is a view.</source>
        <translation>La carte « ^1 » est incorrecte : « ^2 » est une vue.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is not an ordinary table.</source>
        <translation>La carte « ^1 » est incorrecte : « ^2 » n'est pas une table ordinaire.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains the trigger &quot;^2&quot;.</source>
        <translation>La carte « ^1 » est incorrecte : elle contient le déclencheur « ^2 ».</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the column &quot;^2&quot; is computed.</source>
        <translation>La carte « ^1 » est incorrecte : la colonne « ^2 » est calculée.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the index &quot;^2&quot; is computed.</source>
        <translation>La carte « ^1 » est incorrecte : l'index « ^2 » est calculé.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; has a condition.</source>
        <translation>La carte « ^1 » est incorrecte : la table « ^2 » a une condition.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is on a server. This program was built without PostgreSQL and cannot reach it.</source>
        <translation>La carte « ^1 » se trouve sur un serveur. Ce programme a été compilé sans PostgreSQL et ne peut pas y accéder.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is read-only and cannot be changed.</source>
        <translation>La carte « ^1 » est en lecture seule et ne peut pas être modifiée.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was not opened because checking it takes too long.</source>
        <translation>La carte « ^1 » n'a pas été ouverte, car sa vérification prend trop de temps.</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was written by a newer version of this program.</source>
        <translation>La carte « ^1 » a été écrite par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>The map as it is</source>
        <translation>La carte telle quelle</translation>
    </message>
    <message>
        <source>The map file &quot;%1&quot; was moved or deleted. What you change is kept only when you save the map under another name.</source>
        <translation>Le fichier de carte « %1 » a été déplacé ou supprimé. Vos modifications ne seront conservées que si vous enregistrez la carte sous un autre nom.</translation>
    </message>
    <message>
        <source>The map file is damaged: %1.</source>
        <translation>Le fichier de carte est endommagé : %1.</translation>
    </message>
    <message>
        <source>The map to add to: a file, or a place on a server; it is made when there is none.</source>
        <translation>La carte à compléter : un fichier, ou un emplacement sur un serveur ; elle est créée si elle n’existe pas.</translation>
    </message>
    <message>
        <source>The map to open: a file, or a place on a server.</source>
        <translation>La carte à ouvrir : un fichier, ou un emplacement sur un serveur.</translation>
    </message>
    <message>
        <source>The map file was not checked to its end within %1 seconds. It may be very large, or made to keep programs busy. --time-limit sets another limit.</source>
        <translation>Le fichier de carte n'a pas été vérifié jusqu'au bout en %1 secondes. Il est peut-être très volumineux, ou conçu pour occuper les programmes. --time-limit fixe une autre limite.</translation>
    </message>
    <message>
        <source>The map has no features of these layers.</source>
        <translation>La carte n’a aucun objet de ces couches.</translation>
    </message>
    <message>
        <source>The map theme &quot;%1&quot; already exists. Replace it with the scheme?</source>
        <translation>Il existe déjà un thème de carte « %1 ». Le remplacer par le schéma ?</translation>
    </message>
    <message>
        <source>The map was changed in another window and has been reloaded.</source>
        <translation>La carte a été modifiée dans une autre fenêtre et a été rechargée.</translation>
    </message>
    <message>
        <source>The map was written to %1</source>
        <translation>La carte a été écrite dans %1</translation>
    </message>
    <message>
        <source>The operation on &quot;^1&quot; was cancelled.</source>
        <translation>L’opération sur « ^1 » a été annulée.</translation>
    </message>
    <message>
        <source>The page cannot be painted.</source>
        <translation>La page ne peut pas être dessinée.</translation>
    </message>
    <message>
        <source>the program must make a QApplication before it loads it</source>
        <translation>le programme doit créer une QApplication avant de le charger</translation>
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
        <source>The scheme &quot;%1&quot; already exists. Replace it with the map theme?</source>
        <translation>Il existe déjà un schéma « %1 ». Le remplacer par le thème de carte ?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; already exists. Replace it with the one in the file?</source>
        <translation>Il existe déjà un schéma « %1 ». Le remplacer par celui du fichier ?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported as a map theme.</source>
        <translation>Le schéma « %1 » a été exporté comme thème de carte.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported.</source>
        <translation>Le schéma « %1 » a été exporté.</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported. Layers that match: %2</source>
        <translation>Le schéma « %1 » a été importé. Couches correspondantes : %2</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported.</source>
        <translation>Le schéma « %1 » a été importé.</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be read. %2</source>
        <translation>Le fichier de schéma « %1 » ne peut pas être lu. %2</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be written: %2.</source>
        <translation>Le fichier de schéma « %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>The style editor component &quot;%1&quot; cannot be used: %2.</source>
        <translation>Le composant d’édition de style « %1 » ne peut pas être utilisé : %2.</translation>
    </message>
    <message>
        <source>The style editor component takes no further texts.</source>
        <translation>Le composant d’édition de style n’accepte pas d’autres textes.</translation>
    </message>
    <message>
        <source>The theme &quot;%1&quot; already exists. Replace its layers with the visible layers?</source>
        <translation>Le thème « %1 » existe déjà. Remplacer ses couches par les couches visibles ?</translation>
    </message>
    <message>
        <source>The title. The default is the name of the map; &quot;&quot; for no title.</source>
        <translation>Le titre. Par défaut : le nom de la carte ; "" pour aucun titre.</translation>
    </message>
    <message>
        <source>The value &quot;%2&quot; of the layer &quot;%1&quot; is not a number.</source>
        <translation>La valeur « %2 » de la couche « %1 » n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Their data files stay. You can undo the deletion.</source>
        <translation>Leurs fichiers de données restent. La suppression peut être annulée.</translation>
    </message>
    <message>
        <source>Their saved values will be removed from the layer schemes: %1.</source>
        <translation>Leurs valeurs enregistrées seront supprimées des schémas de couches : %1.</translation>
    </message>
    <message>
        <source>There are no patterns of kind %1.</source>
        <translation>Il n’y a pas de motifs de type %1.</translation>
    </message>
    <message>
        <source>There are too many arguments.</source>
        <translation>Il y a trop d’arguments.</translation>
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
        <source>there is no folder &quot;%1&quot;</source>
        <translation>il n’y a pas de dossier « %1 »</translation>
    </message>
    <message>
        <source>There is no group with the ID %1.</source>
        <translation>Il n’y a pas de groupe avec l’ID %1.</translation>
    </message>
    <message>
        <source>There is no layer scheme named &quot;%1&quot;.</source>
        <translation>Il n’y a pas de schéma nommé « %1 ».</translation>
    </message>
    <message>
        <source>There is no layer with the ID %1.</source>
        <translation>Il n’y a pas de couche avec l’ID %1.</translation>
    </message>
    <message>
        <source>there is no room in the folder &quot;%1&quot;</source>
        <translation>il n’y a plus de place dans le dossier « %1 »</translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot; in these layers, which keep theirs: %2</source>
        <translation>Ces couches n’ont pas de style « %1 » et gardent le leur : %2</translation>
    </message>
    <message>
        <source>There is no transaction to commit in &quot;^1&quot;.</source>
        <translation>Il n’y a pas de transaction à valider dans « ^1 ».</translation>
    </message>
    <message>
        <source>There is not enough disk space for the map &quot;^1&quot;.</source>
        <translation>L’espace disque est insuffisant pour la carte « ^1 ».</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Il n'y a rien à importer.</translation>
    </message>
    <message>
        <source>There was not enough memory to record the changes to &quot;^1&quot;; they cannot be undone.</source>
        <translation>La mémoire n’a pas suffi pour enregistrer les modifications de « ^1 » ; elles ne peuvent pas être annulées.</translation>
    </message>
    <message>
        <source>They will be removed from their groups: %1.</source>
        <translation>Elles seront retirées de leurs groupes : %1.</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>Ligne la plus fine</translation>
    </message>
    <message>
        <source>This map is empty. Choose File &gt; Open Data..., or drop data files here.</source>
        <translation>Cette carte est vide. Choisissez Fichier &gt; Ouvrir des données... ou déposez ici des fichiers de données.</translation>
    </message>
    <message>
        <source>This program has no startup database.</source>
        <translation>Ce programme n’a pas de base de données de démarrage.</translation>
    </message>
    <message>
        <source>This project has no map themes.</source>
        <translation>Ce projet n’a pas de thèmes de carte.</translation>
    </message>
    <message>
        <source>This step is no longer possible, because layers that it changed were changed since by another program. Nothing was changed: %1</source>
        <translation>Cette étape n’est plus possible, car des couches qu’elle a modifiées l’ont été depuis par un autre programme. Rien n’a été modifié : %1</translation>
    </message>
    <message>
        <source>This step is no longer possible, because the map theme was changed since. Nothing was changed: %1</source>
        <translation>Cette étape n’est plus possible, car le thème de carte a été modifié depuis. Rien n’a été changé : %1</translation>
    </message>
    <message>
        <source>Title of the map</source>
        <translation>Titre de la carte</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
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
        <source>Undo &amp;Everything Since the Layer Control Opened</source>
        <translation>Annuler &amp;tout depuis l’ouverture du contrôle des couches</translation>
    </message>
    <message>
        <source>Undo &amp;Everything Since the Layer Control Opened (%1)</source>
        <translation>Annuler &amp;tout depuis l’ouverture du contrôle des couches (%1)</translation>
    </message>
    <message>
        <source>Undo All %1 St&amp;eps That Are Kept</source>
        <translation>Annuler les %1 étapes cons&amp;ervées</translation>
    </message>
    <message>
        <source>Undo all changes since the layer control was opened, as one step</source>
        <translation>Annuler en une étape toutes les modifications depuis l’ouverture du contrôle des couches</translation>
    </message>
    <message>
        <source>Undo Layer Change</source>
        <translation>Annuler la modification des couches</translation>
    </message>
    <message>
        <source>Undo the last change to layers, groups or schemes</source>
        <translation>Annuler la dernière modification des couches, groupes et schémas</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Use portrait orientation.</source>
        <translation>Utiliser l'orientation portrait.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valeur :</translation>
    </message>
    <message>
        <source>this program has no driver for %1</source>
        <translation>ce programme n'a pas de pilote pour %1</translation>
    </message>
    <message>
        <source>visible</source>
        <translation>visible</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; Holds</source>
        <translation>Contenu de « %1 »</translation>
    </message>
    <message>
        <source>What is added gets the present values of the layers; what is taken away is lost.</source>
        <translation>Ce qui est ajouté reçoit les valeurs présentes des couches ; ce qui est retiré est perdu.</translation>
    </message>
    <message>
        <source>What you edited was changed elsewhere meanwhile: %1</source>
        <translation>Ce que vous avez modifié a été changé ailleurs entre-temps : %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Words of layers and properties</source>
        <translation>Mots des couches et des propriétés</translation>
    </message>
    <message>
        <source>Write each call between the map and the layer control to FILE.</source>
        <translation>Écrire dans FILE chaque appel entre la carte et le contrôle des couches.</translation>
    </message>
    <message>
        <source>Write the map as PDF, SVG or PNG</source>
        <translation>Écrire la carte en PDF, SVG ou PNG</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
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
        <source>Zoom in</source>
        <translation>Zoomer en avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoomer en arrière</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>Zoom sur &amp;tout</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>it has no attribute named %1</source>
        <translation>aucun attribut ne s’y nomme %1</translation>
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
        <source>it is too large for this computer's memory</source>
        <translation>il est trop volumineux pour la mémoire de cet ordinateur</translation>
    </message>
    <message>
        <source>it made no entry object</source>
        <translation>il n’a pas créé d’objet d’entrée</translation>
    </message>
    <message>
        <source>it uses version %1 of the interface, this program uses version %2</source>
        <translation>il utilise la version %1 de l’interface, ce programme la version %2</translation>
    </message>
    <message>
        <source>it was built with Qt %1, this program with Qt %2</source>
        <translation>il a été compilé avec Qt %1, ce programme avec Qt %2</translation>
    </message>
    <message>
        <source>its format is read only</source>
        <translation>son format est en lecture seule</translation>
    </message>
    <message>
        <source>its name must end in .pdf, .svg or .png</source>
        <translation>son nom doit se terminer par .pdf, .svg ou .png</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>outside the projection</source>
        <translation>hors de la projection</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>the feature is no longer there</source>
        <translation>l’objet n’existe plus</translation>
    </message>
    <message>
        <source>the file is read only</source>
        <translation>le fichier est en lecture seule</translation>
    </message>
    <message>
        <source>the new position is outside the coordinate system</source>
        <translation>la nouvelle position est en dehors du système de coordonnées</translation>
    </message>
    <message>
        <source>Zoom to Layer</source>
        <translation>Zoomer sur la couche</translation>
    </message>
</context>
</TS>
