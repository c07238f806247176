<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>LayerControl</name>
    <message>
        <source>&quot;^1&quot; is no language. Languages are written as &quot;nl&quot; or &quot;pt-BR&quot;, for example.</source>
        <translation>« ^1 » n’est pas une langue. Les langues s’écrivent par exemple « nl » ou « pt-BR ».</translation>
    </message>
    <message>
        <source>&quot;dont care&quot; means that there is no limit.</source>
        <translation>« indifférent » signifie qu’il n’y a pas de limite.</translation>
    </message>
    <message>
        <source>&quot;Show Only These&quot; has not changed any layer.</source>
        <translation>« N’afficher que celles-ci » n’a modifié aucune couche.</translation>
    </message>
    <message>
        <source>&amp;Manage Schemes...</source>
        <translation>&amp;Gérer les schémas...</translation>
    </message>
    <message>
        <source>&amp;Map&apos;s Scale (^1)</source>
        <translation>Échelle de la &amp;carte (^1)</translation>
    </message>
    <message>
        <source>(OBS): obscured; the layer is not drawn at the current scale.</source>
        <translation>(OBS) : masquée ; la couche n’est pas dessinée à l’échelle actuelle.</translation>
    </message>
    <message>
        <source>(SUP): suppressed; the layer is not drawn, for example because its data cannot be read.</source>
        <translation>(SUP) : supprimée de l’affichage ; la couche n’est pas dessinée, par exemple parce que ses données ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 couche</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 pixel</translation>
    </message>
    <message>
        <source>&apos;^1&apos; is not a number.</source>
        <translation>« ^1 » n’est pas un nombre.</translation>
    </message>
    <message>
        <source>1:^1</source>
        <translation>1:^1</translation>
    </message>
    <message>
        <source>&lt;No Name&gt;</source>
        <translation>&lt;Sans nom&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;aucune&gt;</translation>
    </message>
    <message>
        <source>These groups have no layers.</source>
        <translation>Ces groupes ne contiennent aucune couche.</translation>
    </message>
    <message>
        <source>This group has no layers.</source>
        <translation>Ce groupe ne contient aucune couche.</translation>
    </message>
    <message>
        <source>With the scales of this map, this range is empty.</source>
        <translation>Avec les échelles de cette carte, cette plage est vide.</translation>
    </message>
    <message>
        <source>[various]</source>
        <translation>[divers]</translation>
    </message>
    <message>
        <source>^1 &apos;^2&apos; is not a number.</source>
        <translation>^1 : « ^2 » n’est pas un nombre.</translation>
    </message>
    <message>
        <source>^1 (highest)</source>
        <translation>^1 (la plus haute)</translation>
    </message>
    <message>
        <source>^1 (lowest)</source>
        <translation>^1 (la plus basse)</translation>
    </message>
    <message>
        <source>^1 ^2 cannot be used.</source>
        <translation>^1 ^2 ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>^1 ^2 is too large.</source>
        <translation>^1 ^2 est trop grand.</translation>
    </message>
    <message>
        <source>^1 ^2 is too small.</source>
        <translation>^1 ^2 est trop petit.</translation>
    </message>
    <message>
        <source>^1 has no value.</source>
        <translation>^1 n’a pas de valeur.</translation>
    </message>
    <message>
        <source>^1 layers</source>
        <translation>^1 couches</translation>
    </message>
    <message>
        <source>^1 mm will be stored.</source>
        <translation>^1 mm seront enregistrés.</translation>
    </message>
    <message>
        <source>^1 of ^2</source>
        <translation>^1 sur ^2</translation>
    </message>
    <message>
        <source>^1 pixels will be stored.</source>
        <translation>^1 pixels seront enregistrés.</translation>
    </message>
    <message>
        <source>^1 to ^2</source>
        <translation>de ^1 à ^2</translation>
    </message>
    <message>
        <source>^1: ^2</source>
        <translation>^1 : ^2</translation>
    </message>
    <message>
        <source>A click on an object of the layer can show its attributes. Needs a hitable layer.</source>
        <translation>Un clic sur un objet de la couche peut afficher ses attributs. Nécessite une couche cliquable.</translation>
    </message>
    <message>
        <source>A size has no finite value in pixels.</source>
        <translation>Une taille n’a pas de valeur finie en pixels.</translation>
    </message>
    <message>
        <source>A value of this group cannot be read.</source>
        <translation>Une valeur de ce groupe ne peut pas être lue.</translation>
    </message>
    <message>
        <source>A value of this layer cannot be read.</source>
        <translation>Une valeur de cette couche ne peut pas être lue.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>All of these layers are hidden already.</source>
        <translation>Toutes ces couches sont déjà masquées.</translation>
    </message>
    <message>
        <source>All of these layers are shown already.</source>
        <translation>Toutes ces couches sont déjà affichées.</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action.</source>
        <translation>Une erreur inattendue a interrompu l’action.</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action: ^1</source>
        <translation>Une erreur inattendue a interrompu l’action : ^1</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>Are you sure you wish to save the colour schemes to the startup database?</source>
        <translation>Voulez-vous vraiment enregistrer les schémas de couleurs dans la base de données de démarrage ?</translation>
    </message>
    <message>
        <source>&amp;Backdrop</source>
        <translation>Arrière-&amp;plan</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>Couleur de &amp;fond :</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code ^1 has already been assigned. Please assign another code.</source>
        <translation>Le code ^1 est déjà attribué. Veuillez en attribuer un autre.</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;ode :</translation>
    </message>
    <message>
        <source>Code: ^1</source>
        <translation>Code : ^1</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Copier les réglages</translation>
    </message>
    <message>
        <source>Copy the settings of a layer or a group first.</source>
        <translation>Copiez d’abord les réglages d’une couche ou d’un groupe.</translation>
    </message>
    <message>
        <source>Create a layer.</source>
        <translation>Créer une couche.</translation>
    </message>
    <message>
        <source>Create a scheme from the current layer setup.</source>
        <translation>Créer un schéma à partir des réglages actuels des couches.</translation>
    </message>
    <message>
        <source>Current &amp;Scheme:</source>
        <translation>S&amp;chéma actuel :</translation>
    </message>
    <message>
        <source>Custom Colour...</source>
        <translation>Couleur personnalisée...</translation>
    </message>
    <message>
        <source>Custom Line Style...</source>
        <translation>Style de ligne personnalisé...</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Vert foncé</translation>
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
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete layer scheme &apos;^1&apos;?</source>
        <translation>Supprimer le schéma de couches « ^1 » ?</translation>
    </message>
    <message>
        <source>Delete the selected layer.</source>
        <translation>Supprimer la couche sélectionnée.</translation>
    </message>
    <message>
        <source>Delete this scheme.</source>
        <translation>Supprimer ce schéma.</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>Mode d’affichage</translation>
    </message>
    <message>
        <source>Do not draw the layer for now.</source>
        <translation>Ne pas dessiner la couche pour l’instant.</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the &apos;^2&apos; ^1?</source>
        <translation>Voulez-vous appliquer les modifications concernant ^1 « ^2 » ?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the ^1 selected layers?</source>
        <translation>Voulez-vous appliquer les modifications concernant les ^1 couches sélectionnées ?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the selected layer?</source>
        <translation>Voulez-vous appliquer les modifications concernant la couche sélectionnée ?</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>indifférent</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>Ligne en pointillés</translation>
    </message>
    <message>
        <source>Double-click to enter the width.</source>
        <translation>Double-cliquez pour saisir l’épaisseur.</translation>
    </message>
    <message>
        <source>Double-click, or press F2, to edit the code.</source>
        <translation>Double-cliquez ou appuyez sur F2 pour modifier le code.</translation>
    </message>
    <message>
        <source>Draw Priority</source>
        <translation>Priorité de dessin</translation>
    </message>
    <message>
        <source>Draw symbols in the colours of the layer.</source>
        <translation>Dessiner les symboles dans les couleurs de la couche.</translation>
    </message>
    <message>
        <source>Draw the layer faintly, behind the others.</source>
        <translation>Dessiner la couche en clair, derrière les autres.</translation>
    </message>
    <message>
        <source>Draw the layer on the map.</source>
        <translation>Dessiner la couche sur la carte.</translation>
    </message>
    <message>
        <source>Draw the layer with its own style.</source>
        <translation>Dessiner la couche avec son propre style.</translation>
    </message>
    <message>
        <source>Drop the changes and show the stored values again.</source>
        <translation>Abandonner les modifications et réafficher les valeurs enregistrées.</translation>
    </message>
    <message>
        <source>Edit code</source>
        <translation>Modifier le code</translation>
    </message>
    <message>
        <source>Edit layer settings on the Groups and Layers tabs.</source>
        <translation>Modifiez les réglages des couches dans les onglets « Groupes » et « Couches ».</translation>
    </message>
    <message>
        <source>Edit Name</source>
        <translation>Modifier le nom</translation>
    </message>
    <message>
        <source>En&amp;quirable</source>
        <translation>Interrogea&amp;ble</translation>
    </message>
    <message>
        <source>Enter Line Width</source>
        <translation>Saisir la largeur de ligne</translation>
    </message>
    <message>
        <source>ERROR: Group not Found</source>
        <translation>ERREUR : groupe introuvable</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Tout développer</translation>
    </message>
    <message>
        <source>Extended Colours</source>
        <translation>Couleurs étendues</translation>
    </message>
    <message>
        <source>&amp;Fill colour:</source>
        <translation>Couleur de rempliss&amp;age :</translation>
    </message>
    <message>
        <source>F&amp;ill style:</source>
        <translation>Mo&amp;tif :</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find groups and layers</source>
        <translation>Rechercher des groupes et des couches</translation>
    </message>
    <message>
        <source>Find layers</source>
        <translation>Rechercher des couches</translation>
    </message>
    <message>
        <source>Find layers by name or code. Ctrl+F goes here, Escape goes back.</source>
        <translation>Rechercher des couches par nom ou code. Ctrl+F mène ici, Échap en revient.</translation>
    </message>
    <message>
        <source>Find layers by name, code or group. Ctrl+F goes here, Escape goes back.</source>
        <translation>Rechercher des couches par nom, code ou groupe. Ctrl+F mène ici, Échap en revient.</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>Go back to the last saved values of this scheme.</source>
        <translation>Revenir aux dernières valeurs enregistrées de ce schéma.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>group</source>
        <translation>le groupe</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>&amp;Hidden</source>
        <translation>Masqu&amp;ée</translation>
    </message>
    <message>
        <source>Groups: ^1</source>
        <translation>Groupes : ^1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
    <message>
        <source>Hi&amp;table</source>
        <translation>&amp;Cliquable</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>How the renderer draws the layer.</source>
        <translation>Façon dont la couche est rendue.</translation>
    </message>
    <message>
        <source>Invalid Name</source>
        <translation>Nom non valide</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Inverser la sélection</translation>
    </message>
    <message>
        <source>it runs with Qt ^1, this program with Qt ^2</source>
        <translation>il s’exécute avec Qt ^1, ce programme avec Qt ^2</translation>
    </message>
    <message>
        <source>it uses version ^1 of the interface, this program uses version ^2</source>
        <translation>il utilise la version ^1 de l’interface, ce programme la version ^2</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;^1&quot;, this program with &quot;^2&quot;</source>
        <translation>il a été compilé avec la bibliothèque standard « ^1 », ce programme avec « ^2 »</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>la couche</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>Contrôle des couches</translation>
    </message>
    <message>
        <source>Layer groups</source>
        <translation>Groupes de couches</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Layers are deleted in the list of layers.</source>
        <translation>Les couches se suppriment dans la liste des couches.</translation>
    </message>
    <message>
        <source>Line and Fill</source>
        <translation>Ligne et remplissage</translation>
    </message>
    <message>
        <source>Li&amp;ne colour:</source>
        <translation>Couleur &amp;de ligne :</translation>
    </message>
    <message>
        <source>Line style ^1</source>
        <translation>Style de ligne ^1</translation>
    </message>
    <message>
        <source>Line &amp;style:</source>
        <translation>Style de li&amp;gne :</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>Épaisseur de ligne</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Loc&amp;ked</source>
        <translation>Verrou&amp;illée</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Bordeaux</translation>
    </message>
    <message>
        <source>Ma&amp;ximum:</source>
        <translation>Ma&amp;ximum :</translation>
    </message>
    <message>
        <source>&amp;Minimum:</source>
        <translation>&amp;Minimum :</translation>
    </message>
    <message>
        <source>Maximum scale: ^1</source>
        <translation>Échelle maximale : ^1</translation>
    </message>
    <message>
        <source>Minimum scale: ^1</source>
        <translation>Échelle minimale : ^1</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Bleu marine</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>Nouveau schéma</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>N&amp;ouveau...</translation>
    </message>
    <message>
        <source>Ne&amp;w...</source>
        <translation>A&amp;jouter...</translation>
    </message>
    <message>
        <source>No layer is shown.</source>
        <translation>Aucune couche affichée.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Norma&amp;l</source>
        <translation>Norma&amp;l</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Objects of the layer can be clicked on the map.</source>
        <translation>Les objets de la couche sont cliquables sur la carte.</translation>
    </message>
    <message>
        <source>Objects of the layer can be selected. Needs a hitable layer.</source>
        <translation>Les objets de la couche peuvent être sélectionnés. Nécessite une couche cliquable.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Olive</translation>
    </message>
    <message>
        <source>One layer or group at a time can be renamed, but no system layer.</source>
        <translation>Une seule couche ou un seul groupe à la fois peut être renommé, mais pas une couche système.</translation>
    </message>
    <message>
        <source>Only 1 of ^1 layers is shown.</source>
        <translation>Seule 1 couche sur ^1 affichée.</translation>
    </message>
    <message>
        <source>Only ^1 of ^2 layers are shown.</source>
        <translation>Seules ^1 couches sur ^2 affichées.</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>Contour seul</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Pattern ^1</source>
        <translation>Motif ^1</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>Veuillez saisir un nom non vide, ou annulez.</translation>
    </message>
    <message>
        <source>Points that are set near objects of the layer snap to them.</source>
        <translation>Les points posés près d’objets de la couche s’y accrochent.</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>P&amp;riorité :</translation>
    </message>
    <message>
        <source>Possible: ^1 to ^2</source>
        <translation>Possible : ^1 à ^2</translation>
    </message>
    <message>
        <source>Protect the layer against changes.</source>
        <translation>Protéger la couche contre les modifications.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Rename, copy, delete, compare, export and import the schemes of this map.</source>
        <translation>Renommer, copier, supprimer, comparer, exporter et importer les schémas de cette carte.</translation>
    </message>
    <message>
        <source>Revert to the last saved values in layer scheme &apos;^1&apos;?</source>
        <translation>Rétablir les dernières valeurs enregistrées du schéma de couches « ^1 » ?</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save all schemes of this map to the startup database, from which new maps take their schemes.</source>
        <translation>Enregistrer tous les schémas de cette carte dans la base de données de démarrage, dont les nouvelles cartes reprennent les schémas.</translation>
    </message>
    <message>
        <source>Save current layer setup to scheme &apos;^1&apos;?</source>
        <translation>Enregistrer les réglages actuels des couches dans le schéma « ^1 » ?</translation>
    </message>
    <message>
        <source>Save the current layer setup to this scheme.</source>
        <translation>Enregistrer les réglages actuels des couches dans ce schéma.</translation>
    </message>
    <message>
        <source>Save to S&amp;tartup</source>
        <translation>Enregistrer au &amp;démarrage</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Schémas</translation>
    </message>
    <message>
        <source>Select a layer first.</source>
        <translation>Sélectionnez d’abord une couche.</translation>
    </message>
    <message>
        <source>Select a layer or a group first.</source>
        <translation>Sélectionnez d’abord une couche ou un groupe.</translation>
    </message>
    <message>
        <source>Select a layer or a group to see its settings.</source>
        <translation>Sélectionnez une couche ou un groupe pour voir ses réglages.</translation>
    </message>
    <message>
        <source>S&amp;electable</source>
        <translation>Sél&amp;ectionnable</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select All in Group</source>
        <translation>Tout sélectionner dans le groupe</translation>
    </message>
    <message>
        <source>Set Draw Priority</source>
        <translation>Définir la priorité de dessin</translation>
    </message>
    <message>
        <source>Set Maximum Visible Scale</source>
        <translation>Définir l’échelle visible maximale</translation>
    </message>
    <message>
        <source>Set Minimum Visible Scale</source>
        <translation>Définir l’échelle visible minimale</translation>
    </message>
    <message>
        <source>Set the largest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>Définir l’indice d’échelle maximal auquel la couche est dessinée ; « indifférent » ne fixe pas de limite.</translation>
    </message>
    <message>
        <source>Set the order in which layers are drawn; 1 is the highest.</source>
        <translation>Définir l’ordre de dessin des couches ; 1 est la priorité la plus haute.</translation>
    </message>
    <message>
        <source>Set the smallest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>Définir l’indice d’échelle minimal auquel la couche est dessinée ; « indifférent » ne fixe pas de limite.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>Tout réafficher</translation>
    </message>
    <message>
        <source>Show Only These</source>
        <translation>N’afficher que celles-ci</translation>
    </message>
    <message>
        <source>Show Line and Fill</source>
        <translation>Afficher la ligne et le remplissage</translation>
    </message>
    <message>
        <source>Show or hide the settings beside the lists.</source>
        <translation>Afficher ou masquer les réglages à côté des listes.</translation>
    </message>
    <message>
        <source>Hide settings</source>
        <translation>Masquer les réglages</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Coller</translation>
    </message>
    <message>
        <source>Paste Settings</source>
        <translation>Coller des réglages</translation>
    </message>
    <message>
        <source>Paste Settings...</source>
        <translation>Coller des réglages...</translation>
    </message>
    <message>
        <source>Paste these settings into ^1:</source>
        <translation>Coller ces réglages dans ^1 :</translation>
    </message>
    <message>
        <source>Paste these settings into &apos;^1&apos;:</source>
        <translation>Coller ces réglages dans « ^1 » :</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Settings to paste</source>
        <translation>Réglages à coller</translation>
    </message>
    <message>
        <source>Show settings</source>
        <translation>Afficher les réglages</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>Argent</translation>
    </message>
    <message>
        <source>Sna&amp;p required</source>
        <translation>Accroc&amp;hage obligatoire</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Uni</translation>
    </message>
    <message>
        <source>Source: ^1</source>
        <translation>Source : ^1</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>Diminuer</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>Augmenter</translation>
    </message>
    <message>
        <source>Store the changes.</source>
        <translation>Enregistrer les modifications.</translation>
    </message>
    <message>
        <source>Style Editor with that ID already exists.</source>
        <translation>Un éditeur de style portant cet identifiant existe déjà.</translation>
    </message>
    <message>
        <source>St&amp;yle:</source>
        <translation>St&amp;yle :</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Switch to &apos;^1&apos;? Any unsaved changes to the current scheme will be lost. Continue?</source>
        <translation>Passer à « ^1 » ? Les modifications non enregistrées du schéma actuel seront perdues. Continuer ?</translation>
    </message>
    <message>
        <source>Switch to another layer scheme.</source>
        <translation>Passer à un autre schéma de couches.</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu canard</translation>
    </message>
    <message>
        <source>The ^1 &apos;^2&apos; no longer exists. The changes were not applied.</source>
        <translation>« ^2 » (^1) n’existe plus. Les modifications n’ont pas été appliquées.</translation>
    </message>
    <message>
        <source>The changes were not applied.</source>
        <translation>Les modifications n’ont pas été appliquées.</translation>
    </message>
    <message>
        <source>The colour between the lines of patterns.</source>
        <translation>La couleur entre les lignes des motifs.</translation>
    </message>
    <message>
        <source>The colour of filled areas and of the lines of patterns.</source>
        <translation>La couleur des surfaces remplies et des lignes des motifs.</translation>
    </message>
    <message>
        <source>The colour of lines and outlines.</source>
        <translation>La couleur des lignes et des contours.</translation>
    </message>
    <message>
        <source>The copied settings cannot be read.</source>
        <translation>Les réglages copiés sont illisibles.</translation>
    </message>
    <message>
        <source>The folder &quot;^1&quot; has no texts. They are looked for as &quot;nl/POBEX.LRT&quot; and &quot;POBEX.nl.ts&quot;, for example.</source>
        <translation>Le dossier « ^1 » ne contient pas de textes. Ils sont cherchés par exemple sous « nl/POBEX.LRT » et « POBEX.nl.ts ».</translation>
    </message>
    <message>
        <source>The group &apos;^1&apos; no longer has any layers. The changes were not applied.</source>
        <translation>Le groupe « ^1 » ne contient plus de couche. Les modifications n’ont pas été appliquées.</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>Le dernier schéma de couches ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The layer control has not been initialised.</source>
        <translation>Le contrôle des couches n’a pas été initialisé.</translation>
    </message>
    <message>
        <source>The pattern of filled areas. If both fill colours are transparent, patterns have the line colour.</source>
        <translation>Le motif des surfaces remplies. Si les deux couleurs de remplissage sont transparentes, les motifs prennent la couleur du trait.</translation>
    </message>
    <message>
        <source>The pattern or the width of lines and outlines.</source>
        <translation>Le motif ou l’épaisseur des lignes et des contours.</translation>
    </message>
    <message>
        <source>The program must make a QApplication before it makes a layer control.</source>
        <translation>Le programme doit créer une QApplication avant de créer un contrôle des couches.</translation>
    </message>
    <message>
        <source>The selected layers (^1) no longer exist. The changes were not applied.</source>
        <translation>Les couches sélectionnées (^1) n’existent plus. Les modifications n’ont pas été appliquées.</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be read: ^2</source>
        <translation>Les textes « ^1 » ne peuvent pas être lus : ^2</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be used: they are larger than 8 MB, or no Qt Linguist document with finished translations.</source>
        <translation>Les textes « ^1 » ne peuvent pas être utilisés : ils dépassent 8 Mo ou ne sont pas un document Qt Linguist avec des traductions terminées.</translation>
    </message>
    <message>
        <source>The thinnest line will be stored.</source>
        <translation>La ligne la plus fine sera enregistrée.</translation>
    </message>
    <message>
        <source>The value of a check box is 0, 1 or 2.</source>
        <translation>La valeur d’une case à cocher est 0, 1 ou 2.</translation>
    </message>
    <message>
        <source>Theme Control: ^1</source>
        <translation>Contrôle du thème : ^1</translation>
    </message>
    <message>
        <source>These layers have no setting in common.</source>
        <translation>Ces couches n’ont aucun réglage en commun.</translation>
    </message>
    <message>
        <source>These layers no longer exist. Nothing was pasted.</source>
        <translation>Ces couches n’existent plus. Rien n’a été collé.</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>Ligne la plus fine</translation>
    </message>
    <message>
        <source>This map cannot keep which layers were hidden.</source>
        <translation>Cette carte ne peut pas conserver quelles couches ont été masquées.</translation>
    </message>
    <message>
        <source>This map has no display modes.</source>
        <translation>Cette carte n’a pas de modes d’affichage.</translation>
    </message>
    <message>
        <source>This map has no style of that name.</source>
        <translation>Cette carte n’a aucun style de ce nom.</translation>
    </message>
    <message>
        <source>this program does not tell which version it uses</source>
        <translation>ce programme n’indique pas quelle version il utilise</translation>
    </message>
    <message>
        <source>Tick all settings.</source>
        <translation>Cocher tous les réglages.</translation>
    </message>
    <message>
        <source>Tick no setting.</source>
        <translation>Ne cocher aucun réglage.</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Type incompatible</translation>
    </message>
    <message>
        <source>Unexpected program flow in frmLayerStyles</source>
        <translation>Déroulement inattendu du programme dans frmLayerStyles</translation>
    </message>
    <message>
        <source>Unknown Fill Style!</source>
        <translation>Style de remplissage inconnu !</translation>
    </message>
    <message>
        <source>&amp;Use for symbols</source>
        <translation>&amp;Utiliser pour les symboles</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>various</source>
        <translation>divers</translation>
    </message>
    <message>
        <source>&amp;Visible</source>
        <translation>&amp;Visible</translation>
    </message>
    <message>
        <source>Visible Scale Range</source>
        <translation>Plage d’échelles visibles</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>É&amp;paisseur :</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;</source>
        <translation>Une « couche système » ne peut pas être supprimée</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;. Selected layers that stay: ^1.</source>
        <translation>Une « couche système » ne peut pas être supprimée. Couches sélectionnées qui restent : ^1.</translation>
    </message>
</context>
</TS>
