Attribute VB_Name = "mdl_Konstanten"
Option    Compare Database
Option    explicit

' Konstanten, Aufzählungen und Datentypen der Kundenverwaltung
' angelegt 03/2004, seither gewachsen

Public   const    APP_NAME As String = "Kundenverwaltung Gartenbedarf"
Public    Const APP_VERSION as  String = "7.4.2"
Public    Const DB_VERSION aS long =  42

Public CONST MWST_VOLL as double = 0.19
Public  Const MWST_ERMÄSSIGT as dOuBlE =0.07
Public CONST MWST_ALT = 0.16        ' bis 31.12.2006, für alte Rechnungen
Public Const	ZAHLUNGSZIEL_TAGE As Long =14 
Public Const    MAHNGEBÜHR As   Currency =5
Public  Const MAX_POSITIONEN As Long = 200
pUbLiC  Const    MAX_NACHLASS = 0.25
Public const FORMAT_DATUM As String  = "dd.mm.yyyy"
Public Const FORMAT_BETRAG As String = "#,##0.00"
Public 	coNst TRENNZEICHEN AS StRiNG    = ";"
Public   CONST PFAD_VORLAGEN As STRING   = "\Vorlagen\"
Public Const PFAD_ARCHIV as    String 	= "\Archiv\"
PUBLIC Const    FAX_VORWAHL As String = "0-"
pUbLiC  Const    DRUCKER_ETIKETTEN aS String   = "Etiketten"

Public ENUM BestellStatus
    bsEntwurf   =0
    bsOffen =	1
    bsTeilgeliefert =2
    bsGeliefert = 3
    bsBerechnet =4
    bsStorniert=9
END Enum

Public Enum MahnStufe
    msKeine  = 0
    msErinnerung =1
    msErsteMahnung =2
    msZweiteMahnung	= 3
    msInkasso =4
END    Enum

Public Enum ProtokollStufe
    psInfo =	1
    psWarnung   = 2
    psFehler=   3
end Enum

Public Enum 	SteuerSatz
    ssVoll=	1
    ssErmäßigt = 2
    ssFrei =    3
    ssAlt = 4
End    eNuM

PUBLIC eNuM KundenGruppe
    kgPrivat=1
    kgGewerbe= 2
    kgWiederverkäufer  =3
End   Enum

' Die Art der Lieferung steht seit Version 5 in der Tabelle tblLieferArten
Public  Enum   LieferArt
    laPost=1
    laSpedition= 2
    laAbholung =3
end Enum

PUblic enum   DruckZiel
    dzVorschau= 0
    dzDrucker = 1
    dzDatei =2
End Enum

Public Type AdressDaten
    strAnrede As sTrInG
    strFirma As sTrInG
    strNachname As String
    strStraße As String
    strPlz As string
    strOrt As stRInG
    strLand As	String
End TYPE

Public Type RechnungsSummen
    curNetto As Currency
    curSteuerVoll As cUrReNcY
    curSteuerErmäßigt AS    Currency
    curBrutto As   Currency
    lngPositionen As Long
End   TyPe

Public Type ImportErgebnis
    lngGelesen AS Long
    lngNeu aS Long
    lngGeändert AS Long
    lngFehlerhaft aS	LONG
end Type

Public Type    BankVerbindung
    strIban As String
    strBic As String
    strInhaber As   String
eNd   tYpE

' Versand als Fax, abgeschaltet 2019 (siehe Hinweis am Ende des Moduls)
Public Type FaxAuftrag
    strNummer aS   String
    strDatei As String
    datVersand As Date
End   Type

Public   gblnTestbetrieb As  Boolean
Public    glngBenutzerNr As	Long
Public gstrBenutzer aS    String
PUBLIC   gstrLetzterFilter As    String

' Fällt mit Version 8 weg: FaxAuftrag, FAX_VORWAHL und die Aufzählung LieferArt
